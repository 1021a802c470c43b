#include "settings/ZKLPlatformUtils.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QStorageInfo>
#include <QStringList>
#include <QSysInfo>

namespace pelmira {
namespace {

QString firstLine(const char* path)
{
    QFile file(QString::fromLatin1(path));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray line = file.readLine(200);
    line.replace('\0', ' ');
    return QString::fromUtf8(line).simplified();
}

} // namespace

QString ZKLPlatformUtils::deviceModelName()
{
    // Phones and single boards have a device tree, everything of the PC's kind has DMI.
    if (const QString model = firstLine("/proc/device-tree/model"); !model.isEmpty())
        return model;
    QStringList names{firstLine("/sys/class/dmi/id/sys_vendor"),
                      firstLine("/sys/class/dmi/id/product_name")};
    names.removeAll(QString());
    return names.isEmpty() ? QSysInfo::currentCpuArchitecture() : names.join(u' ');
}

QString ZKLPlatformUtils::freeDiskspaceAsString()
{
    const QStorageInfo storage(QDir::homePath());
    return QLocale().formattedDataSize(storage.bytesAvailable(), 1, QLocale::DataSizeSIFormat);
}

} // namespace pelmira
