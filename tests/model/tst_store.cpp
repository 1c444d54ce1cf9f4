#include "model/store.h"

#include "support/datafolderfortest.h"
#include "support/handclock.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::Store;

namespace {

/// A store on an empty workspace, in a folder of its own, whose time a test turns.
struct Fixture {
    DataFolderForTest folder;
    HandClock hands;
    Store store{{.clock = hands.clock(), .schedule = hands.scheduler()}};
    QSignalSpy clients{&store, &Store::clientsChanged};
    QSignalSpy tasks{&store, &Store::tasksChanged};
    QSignalSpy entries{&store, &Store::entriesChanged};
    QSignalSpy shelf{&store, &Store::shelfChanged};
    QSignalSpy launch{&store, &Store::launchChanged};
    QSignalSpy notes{&store, &Store::notesChanged};

    Fixture() { startWith({}); }

    void startWith(const quib::QuibData& data)
    {
        store.setData(data);
        for (auto* spy : {&clients, &tasks, &entries, &shelf, &launch, &notes}) {
            spy->clear();
        }
        hands.scheduled = 0;
    }

    QString announced() const
    {
        QStringList names;
        const auto add = [&](const QSignalSpy& spy, const QString& name) {
            names += QStringList(spy.count(), name);
        };
        add(clients, u"clients"_s);
        add(tasks, u"tasks"_s);
        add(entries, u"entries"_s);
        add(shelf, u"shelf"_s);
        add(launch, u"launch"_s);
        add(notes, u"notes"_s);
        return names.join(u' ');
    }
};

QUuid idOf(int number)
{
    return QUuid::createUuidV5(QUuid(), QByteArray::number(number));
}

QList<QUrl> files(const QStringList& paths)
{
    QList<QUrl> urls;
    for (const auto& path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    return urls;
}

QStringList pathsOf(const QList<quib::ShelfItem>& shelf)
{
    QStringList paths;
    for (const auto& item : shelf) {
        paths << item.path;
    }
    return paths;
}

} // namespace

class StoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addClient_startsAsALeadAtTheStandardRate();
    void addClient_twice_putsTheSecondFirst();
    void deleteClient_removesEveryTwin();
    void deleteClient_unknownId_saysNothing();
    void deleteClient_keepsItsTasks();
    void client_withoutId_isAbsent();
    void client_idTwice_isTheFirst();
    void updateClient_replacesTheFirstOfThatId();
    void updateClient_equal_saysNothing();
    void updateClient_unknownId_changesNothing();
    void addTask_putsTheNewTaskFirst();
    void addTask_trimsTheTitle_data();
    void addTask_trimsTheTitle();
    void addTask_blankTitle_addsNothing();
    void toggleTask_idTwice_flipsTheFirst();
    void toggleTask_unknownId_saysNothing();
    void deleteTask_idTwice_removesBoth();
    void clearDoneTasks_keepsTheOrderOfTheRest();
    void clearDoneTasks_nothingDone_saysNothing();
    void addToShelf_severalFiles_leavesTheLastInFront();
    void addToShelf_sameFileTwice_addsItOnce();
    void addToShelf_fileThatIsThere_saysNothing();
    void addToShelf_otherLetterCase_isAnotherFile();
    void addToShelf_folderWithSlash_isTheFolder();
    void addToShelf_noFiles_saysNothing_data();
    void addToShelf_noFiles_saysNothing();
    void removeFromShelf_leavesTheFileItself();
    void removeFromShelf_unknownId_saysNothing();
    void setNotes_announcesNotesOnly();
    void setNotes_equal_saysNothing();
    void setData_announcesWhatDiffers_data();
    void setData_announcesWhatDiffers();
    void setData_manyDifferences_savesOnce();
    void everySignal_comesAfterTheChange();
    void changeInsideASignal_isKept();
};

void StoreTest::addClient_startsAsALeadAtTheStandardRate()
{
    Fixture f;

    const auto id = f.store.addClient();

    QCOMPARE(f.store.data().clients,
             (QList<quib::Client>{{.id = id, .name = u"New client"_s, .hourlyRate = 30}}));
    QCOMPARE(id.version(), QUuid::Random);
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::addClient_twice_putsTheSecondFirst()
{
    Fixture f;

    f.store.addClient();
    const auto second = f.store.addClient();

    QCOMPARE(f.store.data().clients.size(), 2);
    QCOMPARE(f.store.data().clients.front().id, second);
    QCOMPARE(f.store.data().clients.back().name, u"New client"_s);
}

void StoreTest::deleteClient_removesEveryTwin()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(1)}, {.id = idOf(2)}, {.id = idOf(1)}}});

    f.store.deleteClient(idOf(1));

    QCOMPARE(f.store.data().clients, (QList<quib::Client>{{.id = idOf(2)}}));
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::deleteClient_unknownId_saysNothing()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(1)}}});

    f.store.deleteClient(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::deleteClient_keepsItsTasks()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(1)}},
                 .tasks = {{.id = idOf(2), .clientID = idOf(1)}},
                 .entries = {{.id = idOf(3), .clientID = idOf(1)}}});

    f.store.deleteClient(idOf(1));

    QCOMPARE(f.store.data().tasks.front().clientID, std::optional(idOf(1)));
    QCOMPARE(f.store.data().entries.front().clientID, std::optional(idOf(1)));
    QVERIFY(!f.store.client(idOf(1)));
}

void StoreTest::client_withoutId_isAbsent()
{
    Fixture f;
    f.startWith({.clients = {{.id = QUuid()}}});

    QVERIFY(!f.store.client({}));
    QVERIFY(f.store.client(QUuid()));
}

void StoreTest::client_idTwice_isTheFirst()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(1), .name = u"first"_s}, {.id = idOf(1)}}});

    QCOMPARE(f.store.client(idOf(1))->name, u"first"_s);
}

void StoreTest::updateClient_replacesTheFirstOfThatId()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(2)}, {.id = idOf(1)}, {.id = idOf(1)}}});

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QCOMPARE(f.store.data().clients,
             (QList<quib::Client>{
                 {.id = idOf(2)}, {.id = idOf(1), .name = u"Bloom"_s}, {.id = idOf(1)}}));
    QCOMPARE(f.announced(), u"clients"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::updateClient_equal_saysNothing()
{
    Fixture f;
    f.startWith({.clients = {{.id = idOf(1), .name = u"Bloom"_s}}});

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::updateClient_unknownId_changesNothing()
{
    Fixture f;

    f.store.updateClient({.id = idOf(1), .name = u"Bloom"_s});

    QVERIFY(f.store.data().clients.isEmpty());
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::addTask_putsTheNewTaskFirst()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.addTask(u"Call Ann"_s, idOf(7));

    const auto& task = f.store.data().tasks.front();
    QCOMPARE(task.title, u"Call Ann"_s);
    QCOMPARE(task.clientID, std::optional(idOf(7)));
    QCOMPARE(task.created, f.hands.now);
    QVERIFY(!task.done);
    QVERIFY(!task.id.isNull());
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::addTask_trimsTheTitle_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("title");

    QTest::addRow("blanks") << u"  Call Ann  "_s << u"Call Ann"_s;
    QTest::addRow("line breaks") << u"\r\nCall\nAnn\n"_s << u"Call\nAnn"_s;
    QTest::addRow("tabs and form feeds") << u"\t\v\fCall Ann\t"_s << u"Call Ann"_s;
    QTest::addRow("no-break spaces") << u"\u00A0Call\u00A0Ann\u202F"_s << u"Call\u00A0Ann"_s;
    QTest::addRow("ideographic spaces") << u"\u3000Call Ann\u3000"_s << u"Call Ann"_s;
    QTest::addRow("line and paragraph separators")
        << u"\u2028Call Ann\u2029\u0085"_s << u"Call Ann"_s;
    QTest::addRow("a zero width space is no space") << u"\u200BCall Ann"_s << u"\u200BCall Ann"_s;
}

void StoreTest::addTask_trimsTheTitle()
{
    QFETCH(QString, typed);
    QFETCH(QString, title);
    Fixture f;

    f.store.addTask(typed, {});

    QCOMPARE(f.store.data().tasks.front().title, title);
}

void StoreTest::addTask_blankTitle_addsNothing()
{
    Fixture f;

    f.store.addTask(u"  \n"_s, {});

    QVERIFY(f.store.data().tasks.isEmpty());
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::toggleTask_idTwice_flipsTheFirst()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(2)}, {.id = idOf(1)}, {.id = idOf(1)}}});

    f.store.toggleTask(idOf(1));

    QCOMPARE(
        f.store.data().tasks,
        (QList<quib::TaskItem>{{.id = idOf(2)}, {.id = idOf(1), .done = true}, {.id = idOf(1)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::toggleTask_unknownId_saysNothing()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.toggleTask(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::deleteTask_idTwice_removesBoth()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(1)}, {.id = idOf(2)}, {.id = idOf(1)}}});

    f.store.deleteTask(idOf(1));

    QCOMPARE(f.store.data().tasks, (QList<quib::TaskItem>{{.id = idOf(2)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::clearDoneTasks_keepsTheOrderOfTheRest()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(1)},
                           {.id = idOf(2), .done = true},
                           {.id = idOf(3)},
                           {.id = idOf(4), .done = true}}});

    f.store.clearDoneTasks();

    QCOMPARE(f.store.data().tasks, (QList<quib::TaskItem>{{.id = idOf(1)}, {.id = idOf(3)}}));
    QCOMPARE(f.announced(), u"tasks"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::clearDoneTasks_nothingDone_saysNothing()
{
    Fixture f;
    f.startWith({.tasks = {{.id = idOf(1)}}});

    f.store.clearDoneTasks();

    QCOMPARE(f.store.data().tasks.size(), 1);
    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::addToShelf_severalFiles_leavesTheLastInFront()
{
    Fixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/old"_s}}});

    f.store.addToShelf(files({u"/a"_s, u"/b"_s, u"/c"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), (QStringList{u"/c"_s, u"/b"_s, u"/a"_s, u"/old"_s}));
    QCOMPARE(f.announced(), u"shelf"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::addToShelf_sameFileTwice_addsItOnce()
{
    Fixture f;

    f.store.addToShelf(files({u"/a b%20#?.png"_s, u"/a b%20#?.png"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), QStringList{u"/a b%20#?.png"_s});
}

void StoreTest::addToShelf_fileThatIsThere_saysNothing()
{
    Fixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/a"_s}}});

    f.store.addToShelf(files({u"/a"_s}));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::addToShelf_otherLetterCase_isAnotherFile()
{
    Fixture f;

    f.store.addToShelf(files({u"/a"_s, u"/A"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), (QStringList{u"/A"_s, u"/a"_s}));
}

void StoreTest::addToShelf_folderWithSlash_isTheFolder()
{
    Fixture f;

    f.store.addToShelf(files({u"/folder/"_s, u"/folder"_s}));

    QCOMPARE(pathsOf(f.store.data().shelf), QStringList{u"/folder"_s});
}

void StoreTest::addToShelf_noFiles_saysNothing_data()
{
    QTest::addColumn<QList<QUrl>>("urls");

    QTest::addRow("nothing") << QList<QUrl>{};
    QTest::addRow("an empty address") << QList{QUrl()};
    QTest::addRow("an address of the web") << QList{QUrl(u"https://example.org/a"_s)};
}

void StoreTest::addToShelf_noFiles_saysNothing()
{
    QFETCH(QList<QUrl>, urls);
    Fixture f;

    f.store.addToShelf(urls);

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::removeFromShelf_leavesTheFileItself()
{
    Fixture f;
    f.folder.put("still here");
    f.store.addToShelf(files({f.folder.file()}));

    f.store.removeFromShelf(f.store.data().shelf.front().id);

    QVERIFY(f.store.data().shelf.isEmpty());
    QVERIFY(QFile::exists(f.folder.file()));
    QCOMPARE(f.announced(), u"shelf shelf"_s);
    QCOMPARE(f.hands.scheduled, 2);
}

void StoreTest::removeFromShelf_unknownId_saysNothing()
{
    Fixture f;
    f.startWith({.shelf = {{.id = idOf(1), .path = u"/a"_s}}});

    f.store.removeFromShelf(idOf(2));

    QCOMPARE(f.announced(), QString());
    QCOMPARE(f.hands.scheduled, 0);
}

void StoreTest::setNotes_announcesNotesOnly()
{
    Fixture f;

    f.store.setNotes(u"buy milk"_s);

    QCOMPARE(f.store.notes(), u"buy milk"_s);
    QCOMPARE(f.announced(), u"notes"_s);
    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::setNotes_equal_saysNothing()
{
    Fixture f;
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
    Fixture f;

    f.store.setData(data);

    QCOMPARE(f.store.data(), data);
    QCOMPARE(f.announced(), announced);
}

void StoreTest::setData_manyDifferences_savesOnce()
{
    Fixture f;

    f.store.setData({.clients = {{.id = idOf(1)}}, .notes = u"x"_s});

    QCOMPARE(f.hands.scheduled, 1);
}

void StoreTest::everySignal_comesAfterTheChange()
{
    Fixture f;
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
    Fixture f;
    connect(&f.store, &Store::clientsChanged, this, [&] { f.store.setNotes(u"a client came"_s); });

    f.store.addClient();
    f.store.saveNow();

    QCOMPARE(f.store.data().clients.size(), 1);
    QVERIFY(f.folder.bytes().contains("a client came"));
}

QTEST_GUILESS_MAIN(StoreTest)
#include "tst_store.moc"
