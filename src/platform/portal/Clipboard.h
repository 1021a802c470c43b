#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <variant>

class QMimeData;

namespace pelmira {

/// An image on its way in: nothing, a local file, an encoded image, or, where the other program has
/// only pixels, those.
using OfferedImage = std::variant<std::monostate, QString, QByteArray, QImage>;

/// What is offered by a clipboard's contents. Nothing is decoded, unless there are only pixels.
OfferedImage imageOffered(const QMimeData& data);

/// The clipboard that the programs of the session share. Needs a QGuiApplication.
class Clipboard {
public:
    /// Puts an image there, with its transparency. Only as PNG, which everything that pastes
    /// images takes: other forms would be encoded while the other program waits, and lose the
    /// transparency.
    static void setPng(const QByteArray& png);

    static void setText(const QString& text);

    static OfferedImage image();
};

} // namespace pelmira
