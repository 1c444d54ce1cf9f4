#include "support/storefixture.h"

#include <QTest>

using namespace Qt::StringLiterals;
using quib::Store;

class StoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setNotes_announcesNotesOnly();
    void setNotes_equal_saysNothing();
    void setData_announcesWhatDiffers_data();
    void setData_announcesWhatDiffers();
    void setData_manyDifferences_savesOnce();
    void everySignal_comesAfterTheChange();
    void changeInsideASignal_isKept();
};

void StoreTest::setNotes_announcesNotesOnly()
{
    StoreFixture f;

    f.store.setNotes(u"buy milk"_s);

    QCOMPARE(f.store.notes(), u"buy milk"_s);
    QCOMPARE(f.announced(), u"notes"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::setNotes_equal_saysNothing()
{
    StoreFixture f;
    f.startWith({.notes = u"buy milk"_s});

    f.store.setNotes(u"buy milk"_s);

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::setData_announcesWhatDiffers_data()
{
    QTest::addColumn<quib::QuibData>("data");
    QTest::addColumn<QString>("announced");

    using quib::QuibData;
    QTest::addRow("nothing") << QuibData{} << QString();
    QTest::addRow("clients") << QuibData{.clients = {{.id = idOf(1)}}} << u"clients"_s;
    QTest::addRow("tasks") << QuibData{.tasks = {{.id = idOf(1)}}} << u"tasks"_s;
    QTest::addRow("entries") << QuibData{.entries = {{.id = idOf(1)}}} << u"entries"_s;
    QTest::addRow("shelf") << QuibData{.shelf = {{.id = idOf(1)}}} << u"shelf"_s;
    QTest::addRow("launch") << QuibData{.launch = {{.id = idOf(1)}}} << u"launch"_s;
    QTest::addRow("notes") << QuibData{.notes = u"x"_s} << u"notes"_s;
    QTest::addRow("two of them") << QuibData{.shelf = {{.id = idOf(1)}}, .notes = u"x"_s}
                                 << u"shelf notes"_s;
}

void StoreTest::setData_announcesWhatDiffers()
{
    QFETCH(quib::QuibData, data);
    QFETCH(QString, announced);
    StoreFixture f;

    f.store.setData(data);

    QCOMPARE(f.store.data(), data);
    QCOMPARE(f.announced(), announced);
}

void StoreTest::setData_manyDifferences_savesOnce()
{
    StoreFixture f;

    f.store.setData({.clients = {{.id = idOf(1)}}, .notes = u"x"_s});

    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::everySignal_comesAfterTheChange()
{
    StoreFixture f;
    QString notesWhenTold;
    qsizetype clientsWhenTold = 0;
    connect(&f.store, &Store::notesChanged, this, [&] { notesWhenTold = f.store.notes(); });
    connect(&f.store, &Store::clientsChanged, this,
            [&] { clientsWhenTold = f.store.data().clients.size(); });

    f.store.setNotes(u"new"_s);
    f.store.addClient();

    QCOMPARE(notesWhenTold, u"new"_s);
    QCOMPARE(clientsWhenTold, 1);
}

void StoreTest::changeInsideASignal_isKept()
{
    StoreFixture f;
    connect(&f.store, &Store::clientsChanged, this, [&] { f.store.setNotes(u"a client came"_s); });

    f.store.addClient();
    f.store.saveNow();

    QCOMPARE(f.store.data().clients.size(), 1);
    QVERIFY(f.folder.bytes().contains("a client came"));
}

QTEST_GUILESS_MAIN(StoreTest)
#include "tst_store.moc"
