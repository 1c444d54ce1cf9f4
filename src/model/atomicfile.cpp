#include "model/atomicfile.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr qsizetype RandomLetters = 6; // As QSaveFile ends the names of its temporary files.

/// True too where the file system has no such notion.
bool reachesDisk(int file)
{
    return ::fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// A rename outlives a loss of power only once its folder is on disk.
void syncFolderOf(const QString& path)
{
    const auto folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        return;
    }
    ::fsync(descriptor);
    ::close(descriptor);
}

/// QSaveFile alone would commit what fitted on a full disk, and ignores a failing sync.
bool writeDurably(QSaveFile& file, const QByteArray& bytes)
{
    return file.write(bytes) == bytes.size() && file.flush() && reachesDisk(file.handle());
}

bool isSmallLetter(QChar character)
{
    return character >= u'a' && character <= u'z';
}

bool isCapital(QChar character)
{
    return character >= u'A' && character <= u'Z';
}

/// Six letters drawn at random nearly always change case on the way. A word that somebody chose,
/// such as "backup" or "Backup", does not: better a file too many than a copy lost.
bool looksRandom(QStringView suffix)
{
    const auto small = std::ranges::count_if(suffix, isSmallLetter);
    const auto capitals = std::ranges::count_if(suffix, isCapital);
    const auto startsAsWord = isCapital(suffix.front()) ? 1 : 0;
    return small + capitals == RandomLetters && small > 0 && capitals > startsAsWord;
}

bool isOurs(const QFileInfo& file)
{
    return file.isFile() && !file.isSymLink() && file.ownerId() == ::geteuid();
}

/// The file that a link stands for, whether or not it exists yet.
QFileInfo linkTarget(const QString& path)
{
    QFileInfo file(path);
    for (int links = 0; file.isSymLink() && links < 40; ++links) {
        file.setFile(file.symLinkTarget());
    }
    return file;
}

} // namespace

bool replaceFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (!writeDurably(file, bytes)) {
        file.cancelWriting();
    }
    if (!file.commit()) {
        return false;
    }
    syncFolderOf(linkTarget(path).filePath());
    return true;
}

void removeLeftovers(const QString& path)
{
    const auto target = linkTarget(path);
    const auto start = target.fileName() + u'.';
    auto folder = target.dir();
    const auto candidates = folder.entryInfoList({start + u"??????"_s},
                                                 QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const auto& file : candidates) {
        if (looksRandom(QStringView(file.fileName()).last(RandomLetters)) && isOurs(file)) {
            folder.remove(file.fileName());
        }
    }
}

} // namespace quib
