#pragma once

#include "controls/InterfaceButton.h"

#include <QImage>
#include <QRectF>
#include <QString>

namespace pelmira {

/// A button of a strip that scrolls: an image over a title. Both take the tint.
class StripButton : public InterfaceButton {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(int tag READ tag CONSTANT)
public:
    StripButton(int tag, QString title, QString name, QObject* parent);

    QString title() const { return _title; }
    /// The title, and in words what the icon says: no two are the same.
    QString name() const { return _name; }
    /// In the strip.
    QRectF frame() const { return _frame; }
    void setFrame(const QRectF& frame);
    /// The template in the tint.
    QImage image() const { return _image; }
    /// Only the template's transparency counts.
    void setTemplateImage(const QImage& image);

Q_SIGNALS:
    void frameChanged();
    void imageChanged();

private:
    void tintImage();

    const QString _title;
    const QString _name;
    QRectF _frame;
    QImage _template;
    QImage _image;
};

} // namespace pelmira
