#include "bytes.h"
#include "platform/linux/base/keyfile.h"
#include "platform/linux/session/sessionentry.h"

#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file that is nowhere on a disk.
class MemoryFile {
public:
    void hold(const QByteArray& bytes) const
    {
        demand(ftruncate(m_file, 0) == 0);
        demand(pwrite(m_file, bytes.constData(), std::size_t(bytes.size()), 0) == bytes.size());
    }

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file); }

private:
    int m_file = memfd_create("entry", 0);
};

} // namespace

/// A desktop entry, or the index of a theme, of any bytes is read to its end or counts as none.
int LLVMFuzzerTestOneInput(const char* bytes, std::size_t size)
{
    static const MemoryFile file;
    file.hold(Bytes(bytes, size).rest());

    const quib::KeyFile entry(file.path());
    const auto group = entry.firstGroup();
    for (const auto* key : {"Name", "Icon", "Exec", "Hidden", "Inherits", "Directories", "Size"}) {
        demand(entry.text(group, key).isNull() || entry.has(group, key));
        entry.textInOurLanguage(group, key);
        entry.list(group, key);
        entry.entryList(group, key);
        entry.isOn(group, key);
        entry.number(group, key, 0);
    }
    quib::startsSomething(file.path());
    return 0;
}
