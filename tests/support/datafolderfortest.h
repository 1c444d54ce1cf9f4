#pragma once

#include "support/bytesof.h"
#include "support/writefile.h"

#include <QTemporaryDir>

/// A data folder of a test's own, named in QUIB_DATA_DIR for as long as this lives.
class DataFolderForTest {
public:
    DataFolderForTest() { qputenv("QUIB_DATA_DIR", QFile::encodeName(path())); }
    ~DataFolderForTest() { qunsetenv("QUIB_DATA_DIR"); }
    Q_DISABLE_COPY_MOVE(DataFolderForTest)

    QString path() const { return m_dir.path(); }
    QString file() const { return m_dir.filePath(QStringLiteral("data.json")); }

    QByteArray bytes() const { return bytesOf(file()); }

    void put(const QByteArray& bytes) const { writeFile(file(), bytes); }

private:
    QTemporaryDir m_dir;
};
