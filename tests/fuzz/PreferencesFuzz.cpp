#include "background_editor/colors/ZKLPersistedColorsModel.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/storage/UserDefaults.h"

#include <QJsonDocument>
#include <QTemporaryDir>

#include <cmath>
#include <cstdint>
#include <cstdlib>

// A preferences file of any content: the values in it, and the favourite colours among them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/pelmira-fuzz-XXXXXX"));
    const QString path = folder.filePath(QStringLiteral("preferences.json"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(bytes), static_cast<qint64>(count)) < 0)
        std::abort();
    file.close();
    {
        pelmira::UserDefaults defaults(path);
        const pelmira::PerstistenceHelper helper(defaults);
        (void)(helper.numSaves() + helper.saveTransparentAsHEIF() + helper.savesCleanEdges());
        pelmira::ZKLPersistedColorsModel colors(defaults);
        for (const auto& color : colors.colors())
            if (!std::isfinite(color.r) || !std::isfinite(color.g) || !std::isfinite(color.b))
                std::abort();
        colors.add(0.25F, 0.5F, 0.75F);
    }
    // What was written can be read, whatever stood there.
    pelmira::UserDefaults again(path);
    const pelmira::ZKLPersistedColorsModel colors(again);
    if (colors.colors().empty() || colors.colors().front().g != 0.5F)
        std::abort();
    return 0;
}
