#include "platform/linux/base/companion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace quib {

QString companion(const QString& fileName)
{
    const QDir program(QCoreApplication::applicationDirPath());
    const auto beside = program.filePath(fileName);
    // By steps from the program, so that an installed tree can be moved as a whole.
    return QFileInfo::exists(beside)
        ? beside
        : QDir::cleanPath(program.filePath(QUIB_COMPANIONS "/"_L1 + fileName));
}

} // namespace quib
