#include "support/bytesof.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

/// The table in README.md says which test holds what: that must be so.
class ClaimsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyTest_hasARow();
    void everyNameInARow_exists();

private:
    QHash<QString, QString> m_tests; ///< Their texts, by file name without a suffix.
    QStringList m_rows; ///< What they are held by.
};

namespace {

/// Tests that are none of C++ or QML.
const QStringList OfTheBuild{u"layering"_s, u"compiledviews"_s, u"qmllint"_s};

QString textOf(const QString& path)
{
    return QString::fromUtf8(bytesOf(path));
}

/// What stands between backticks.
QStringList quotedIn(const QString& text)
{
    static const QRegularExpression quoted(u"`([^`]+)`"_s);
    QStringList found;
    for (const auto& match : quoted.globalMatch(text)) {
        found << match.captured(1);
    }
    return found;
}

QString testOf(const QString& quoted)
{
    return quoted.startsWith("tst_"_L1) ? quoted.section(u'.', 0, 0) : QString();
}

/// Where a test function of that name begins. Dots in a name stand for any part of it.
QRegularExpression patternOf(const QString& name)
{
    QStringList parts;
    for (const auto& part : name.split(u'…')) {
        parts << QRegularExpression::escape(part);
    }
    return QRegularExpression(u"(void \\w+::|function )"_s + parts.join(u"\\w*"_s) + u"\\b"_s);
}

} // namespace

void ClaimsTest::initTestCase()
{
    const auto readme = QFINDTESTDATA("README.md");
    QDirIterator files(QFileInfo(readme).path(), {u"tst_*.cpp"_s, u"tst_*.qml"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        m_tests.insert(file.completeBaseName(), textOf(file.filePath()));
    }
    for (const auto& line : textOf(readme).split(u'\n')) {
        if (line.startsWith(u'|')) {
            m_rows << line.section(u'|', -2, -2);
        }
    }
    QVERIFY(m_tests.size() > 1 && m_rows.size() > 1);
}

void ClaimsTest::everyTest_hasARow()
{
    QSet<QString> named;
    for (const auto& row : std::as_const(m_rows)) {
        for (const auto& quoted : quotedIn(row)) {
            named << testOf(quoted);
        }
    }

    auto missing = QSet<QString>(m_tests.keyBegin(), m_tests.keyEnd()).subtract(named).values();
    missing.sort();
    QCOMPARE(missing.join(u'\n'), QString());
}

/// Of a test, or of a function in one that the row names.
void ClaimsTest::everyNameInARow_exists()
{
    QStringList missing;
    for (const auto& row : std::as_const(m_rows)) {
        QString texts;
        QStringList names;
        for (const auto& quoted : quotedIn(row)) {
            const auto test = testOf(quoted);
            texts += m_tests.value(test);
            if (test.isEmpty()) {
                names << quoted;
            } else if (!m_tests.contains(test)) {
                missing << quoted;
            }
        }
        for (const auto& name : names) {
            if (!OfTheBuild.contains(name) && !patternOf(name).match(texts).hasMatch()) {
                missing << name;
            }
        }
    }

    QCOMPARE(missing.join(u'\n'), QString());
}

QTEST_APPLESS_MAIN(ClaimsTest)
#include "tst_claims.moc"
