#include "platform/net/BoundedJson.h"

#include <QJsonDocument>

#include <algorithm>

namespace pelmira {
namespace {

/// How deep brackets outside of strings lie in each other, whether or not the text is JSON.
int nesting(const QByteArray& text)
{
    int depth = 0;
    int deepest = 0;
    bool isString = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isString) {
            if (c == '\\')
                ++i;
            isString = c != '"';
        } else if (c == '"') {
            isString = true;
        } else if (c == '{' || c == '[') {
            deepest = std::max(deepest, ++depth);
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return deepest;
}

} // namespace

std::optional<QJsonObject> jsonObjectFromData(const QByteArray& text, int deepest)
{
    if (nesting(text) > deepest)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

} // namespace pelmira
