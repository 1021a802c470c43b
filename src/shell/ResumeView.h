#pragma once

#include "platform/text/LocalizedStrings.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace pelmira {

/// The offer to go on with the photo that was being cut out when the application last ended.
class ResumeView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image CONSTANT)
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(QString messageLabel READ messageLabel CONSTANT)
    Q_PROPERTY(QString noButton READ noButton CONSTANT)
    Q_PROPERTY(QString yesButton READ yesButton CONSTANT)

public:
    /// The cut-out so far.
    explicit ResumeView(QImage thumbnail) : _image(std::move(thumbnail)) {}

    std::function<void()> yesBlock;
    std::function<void()> noBlock;

    Q_INVOKABLE void handleYes()
    {
        if (yesBlock)
            yesBlock();
    }
    Q_INVOKABLE void handleNo()
    {
        if (noBlock)
            noBlock();
    }

    QImage image() const { return _image; }
    QString titleLabel() const { return localized(QStringLiteral("resume.title")); }
    QString messageLabel() const { return localized(QStringLiteral("resume.message")); }
    QString noButton() const { return localized(QStringLiteral("generic.no")); }
    QString yesButton() const { return localized(QStringLiteral("generic.yes")); }

private:
    QImage _image;
};

} // namespace pelmira
