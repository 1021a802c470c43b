#pragma once

#include "platform/text/LocalizedStrings.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <functional>

namespace pelmira {

/// The offer to go on with the photo that was being cut out when the application last ended.
class ResumeView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(QImage shadow READ shadow NOTIFY imageChanged)
    Q_PROPERTY(double shadowMargin READ shadowMargin CONSTANT)
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(QString messageLabel READ messageLabel CONSTANT)
    Q_PROPERTY(QString noButton READ noButton CONSTANT)
    Q_PROPERTY(QString yesButton READ yesButton CONSTANT)

public:
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

    /// The cut-out so far; nothing until it is read.
    QImage image() const { return _image; }
    void setImage(const QImage& thumbnail);
    /// What the cut-out casts around itself, to be shown smoothly enlarged behind it.
    QImage shadow() const { return _shadow; }
    /// How far the shadow reaches beyond the picture on each side, as a share of its longer side.
    double shadowMargin() const;
    QString titleLabel() const { return localized("resume.title"); }
    QString messageLabel() const { return localized("resume.message"); }
    QString noButton() const { return localized("generic.no"); }
    QString yesButton() const { return localized("generic.yes"); }

Q_SIGNALS:
    void imageChanged();

private:
    QImage _image;
    QImage _shadow;
};

} // namespace pelmira
