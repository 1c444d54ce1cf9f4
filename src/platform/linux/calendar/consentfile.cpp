#include "platform/linux/calendar/consentfile.h"

#include "model/file/atomicfile.h"
#include "model/file/privatefolder.h"
#include "model/texts/nativepath.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr auto Yes = "yes";
constexpr auto No = "no";
constexpr qint64 LongestWord = 8;

} // namespace

QString consentFile()
{
    const auto chosen = qEnvironmentVariable("XDG_CONFIG_HOME");
    const auto folder = QDir::isAbsolutePath(chosen) ? chosen : QDir::homePath() + "/.config"_L1;
    return folder + "/KorvelQuib/calendar-access"_L1;
}

std::optional<bool> readConsent()
{
    QFile file(consentFile());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    const auto word = file.read(LongestWord).trimmed();
    const bool isDecided = word == Yes || word == No;
    return isDecided ? std::optional(word == Yes) : std::nullopt;
}

void writeConsent(bool isGranted)
{
    const auto path = nativePath(consentFile());
    makePrivateFolder(path.parent_path());
    replaceFile(path, isGranted ? Yes : No, NewFile::Private);
}

} // namespace quib
