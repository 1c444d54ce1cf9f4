#include "app/appdelegate.h"
#include "app/snapshot.h"

#include "support/fakes/fakeshell.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class SnapshotTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictures_areOneForEachTab();
    void pictures_haveTheSizeOfThePanel();
    void pictures_areClearAroundTheCard();
    void data_isNotWritten();
    void calendar_thatAnswersLate_isInThePicture();
    void missingFolder_staysMissing();

private:
    QTemporaryDir m_data;
    QTemporaryDir m_pictures;
};

void SnapshotTest::initTestCase()
{
    qputenv("QUIB_DATA_DIR", m_data.path().toLocal8Bit());
    QTest::failOnWarning(QRegularExpression(u"QQuick"_s));
    FakeShell shell;
    quib::AppDelegate delegate(std::move(shell.platform));
    shell.calendar.authorizations.front()(quib::CalendarAuthorization::NotDetermined);

    quib::Snapshot::run(m_pictures.path(), delegate);

    QVERIFY(delegate.model().isExpanded());
    QCOMPARE(delegate.model().tab(), quib::Tab::Notes);
}

void SnapshotTest::pictures_areOneForEachTab()
{
    QCOMPARE(QDir(m_pictures.path()).entryList(QDir::Files, QDir::Name),
             (QStringList{u"clients.png"_s, u"home.png"_s, u"links.png"_s, u"notes.png"_s,
                          u"shelf.png"_s, u"tasks.png"_s, u"time.png"_s}));
}

void SnapshotTest::pictures_haveTheSizeOfThePanel()
{
    QCOMPARE(QImage(m_pictures.filePath(u"tasks.png"_s)).size(), QSize(760, 330));
}

void SnapshotTest::pictures_areClearAroundTheCard()
{
    const QImage picture(m_pictures.filePath(u"tasks.png"_s));

    QCOMPARE(picture.pixelColor(5, 200).alpha(), 0);
    QCOMPARE(picture.pixelColor(380, 300).alpha(), 0);
    QCOMPARE(picture.pixelColor(60, 285), QColor(Qt::black));
}

void SnapshotTest::data_isNotWritten()
{
    // The starter buttons were, as whenever the links are shown.
    QCOMPARE(QDir(m_data.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{u"shortcuts.json"_s});
}

void SnapshotTest::calendar_thatAnswersLate_isInThePicture()
{
    const QTemporaryDir pictures;
    FakeShell shell;
    quib::AppDelegate delegate(std::move(shell.platform));
    auto& calendar = shell.calendar;
    QTimer::singleShot(600ms, this, [&] {
        calendar.authorizations.front()(quib::CalendarAuthorization::FullAccess);
    });
    QTimer::singleShot(1200ms, this, [&] {
        calendar.readings.back().answer(
            {{.title = u"Fair"_s, .isAllDay = true, .color = QColor(Qt::green)}});
    });

    quib::Snapshot::run(pictures.path(), delegate);

    const QImage picture(pictures.filePath(u"home.png"_s));
    int green = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            green += picture.pixelColor(x, y) == QColor(Qt::green) ? 1 : 0;
        }
    }
    QVERIFY(green > 20); // The bar of the event.
}

// Nor does it wait for ever for the calendar, which is silent here.
void SnapshotTest::missingFolder_staysMissing()
{
    FakeShell shell;
    quib::AppDelegate delegate(std::move(shell.platform));
    const auto folder = m_pictures.filePath(u"missing"_s);

    quib::Snapshot::run(folder, delegate);

    QVERIFY(!QDir(folder).exists());
}

QTEST_MAIN(SnapshotTest)
#include "tst_snapshot.moc"
