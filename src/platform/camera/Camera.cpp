#include "platform/camera/Camera.h"

#include <QRegularExpression>

namespace pelmira {

CameraPosition positionFromName(const QString& name)
{
    static const QRegularExpression front(QStringLiteral("\\b(front|user|selfie)\\b"),
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression back(QStringLiteral("\\b(back|rear|world)\\b"),
                                         QRegularExpression::CaseInsensitiveOption);
    if (front.match(name).hasMatch())
        return CameraPosition::Front;
    return back.match(name).hasMatch() ? CameraPosition::Back : CameraPosition::Unknown;
}

} // namespace pelmira
