#include "Fuzz.h"
#include "background_editor/colors/ZKLPersistedColorsModel.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/storage/UserDefaults.h"

#include <QJsonDocument>
#include <QTemporaryDir>

#include <cmath>

// A preferences file of any content: the values in it, and the favourite colours among them.
void pelmira::fuzz(const QByteArray& input)
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/pelmira-fuzz-XXXXXX"));
    const QString path = folder.filePath(QStringLiteral("preferences.json"));
    QFile file(path);
    must(file.open(QIODevice::WriteOnly) && file.write(input) == input.size());
    file.close();
    {
        UserDefaults defaults(path);
        const PerstistenceHelper helper(defaults);
        (void)(helper.numSaves() + helper.saveTransparentAsHEIF() + helper.savesCleanEdges());
        ZKLPersistedColorsModel colors(defaults);
        for (const auto& color : colors.colors())
            must(std::isfinite(color.r) && std::isfinite(color.g) && std::isfinite(color.b));
        colors.add(0.25F, 0.5F, 0.75F);
    }
    // What was written can be read, whatever stood there.
    UserDefaults again(path);
    const ZKLPersistedColorsModel colors(again);
    must(!colors.colors().empty() && colors.colors().front().g == 0.5F);
}
