#include "support/panel/shelftab.h"
#include "support/toldtext.h"

using namespace Qt::StringLiterals;

/// What the shelf shows.
class ShelfViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shelf = std::make_unique<ShelfTab>(); }
    void cleanup() { m_shelf.reset(); }

    void empty_invitesAndHasNothingToClear();
    void files_areShownNewestFirst();
    void tiles_standInTheMiddle();
    void clear_emptiesTheShelfAtOnce();
    void missingFile_isDimmedUntilItComesBack();
    void missingFile_canBeTakenAway();
    void diskThatDoesNotAnswer_isAskedForNoPicture();
    void presence_isLookedForAgainAndAgain();
    void presence_isNotLookedForOutOfSight();
    void icon_isAskedForAtItsSize();
    void otherTiles_stayWhenOneGoes();
    void twoHundredFiles_makeOnlyTheTilesInSight();
    void longNames_stayInTheirPlace_data();
    void longNames_stayInTheirPlace();
    void names_tellWhatIsThere();

private:
    std::unique_ptr<ShelfTab> m_shelf;
};

void ShelfViewTest::empty_invitesAndHasNothingToClear()
{
    QVERIFY(m_shelf->item(u"placeholder"_s)->isVisible());
    QVERIFY(!m_shelf->item(u"clear"_s)->isVisible());
    QCOMPARE(m_shelf->text(u"invitation"_s),
             u"Drop logos, mockups, invoices… here to keep them handy"_s);

    m_shelf->put({u"/a.png"_s});

    QVERIFY(!m_shelf->item(u"placeholder"_s)->isVisible());
    QVERIFY(m_shelf->item(u"clear"_s)->isVisible());
    QCOMPARE(m_shelf->shownNames(), QStringList{u"a.png"_s});
}

void ShelfViewTest::files_areShownNewestFirst()
{
    m_shelf->put({u"/home/me/first.png"_s, u"/home/me/folder"_s, u"/"_s});

    QCOMPARE(m_shelf->shownNames(), (QStringList{u"/"_s, u"folder"_s, u"first.png"_s}));
    QVERIFY(m_shelf->tile(0)->x() < m_shelf->tile(1)->x());
}

void ShelfViewTest::tiles_standInTheMiddle()
{
    m_shelf->fill(3);

    for (int number = 0; number < 3; ++number) {
        QCOMPARE(inScene(m_shelf->tile(number)).center().y(),
                 inScene(m_shelf->list()).center().y());
    }
}

void ShelfViewTest::clear_emptiesTheShelfAtOnce()
{
    m_shelf->fill(3);

    m_shelf->click(m_shelf->item(u"clear"_s));

    QCOMPARE(m_shelf->paths(), QStringList());
    m_shelf->settle();
    QVERIFY(m_shelf->item(u"placeholder"_s)->isVisible());
}

void ShelfViewTest::missingFile_isDimmedUntilItComesBack()
{
    m_shelf->files.gone = {u"/gone"_s};
    m_shelf->put({u"/gone"_s, u"/there"_s});
    const auto opacity
        = [this](int number) { return m_shelf->part(number, u"picture"_s)->opacity(); };
    QCOMPARE(opacity(0), 1.0);
    QCOMPARE(opacity(1), 0.3);

    m_shelf->files.gone = {u"/there"_s};
    m_shelf->lookAtTheDisk();

    QCOMPARE(opacity(0), 0.3);
    QCOMPARE(opacity(1), 1.0);
}

void ShelfViewTest::missingFile_canBeTakenAway()
{
    m_shelf->files.gone = {u"/gone"_s};
    m_shelf->put({u"/gone"_s});

    m_shelf->move(m_shelf->tile(0));
    m_shelf->click(m_shelf->part(0, u"remove"_s));

    QCOMPARE(m_shelf->paths(), QStringList());
}

void ShelfViewTest::diskThatDoesNotAnswer_isAskedForNoPicture()
{
    m_shelf->files.unknown = {u"/mnt/dead/file"_s};
    m_shelf->put({u"/mnt/dead/file"_s});

    QVERIFY(m_shelf->icons.open.isEmpty());
    QVERIFY(m_shelf->part(0, u"unknown"_s)->isVisible());
    QCOMPARE(m_shelf->part(0, u"picture"_s)->opacity(), 0.3);

    m_shelf->files.unknown.clear();
    m_shelf->lookAtTheDisk();

    QVERIFY(!m_shelf->part(0, u"unknown"_s)->isVisible());
    QCOMPARE(m_shelf->icons.open.size(), 1);
}

void ShelfViewTest::presence_isLookedForAgainAndAgain()
{
    m_shelf->put({u"/file"_s});
    m_shelf->files.asked.clear();

    QTRY_VERIFY(m_shelf->files.asked.size() >= 2);
}

void ShelfViewTest::presence_isNotLookedForOutOfSight()
{
    m_shelf->put({u"/file"_s});
    m_shelf->model.setTab(quib::Tab::Notes);
    m_shelf->files.asked.clear();

    QTest::qWait(2500); // Nothing tells that nothing happens: in sight it is looked for by then.
    QCOMPARE(m_shelf->files.asked, QStringList());

    m_shelf->model.setTab(quib::Tab::Shelf);
    QCOMPARE(m_shelf->files.asked, QStringList{u"/file"_s});
}

void ShelfViewTest::icon_isAskedForAtItsSize()
{
    m_shelf->put({u"/home/me/logo.svg"_s});

    QCOMPARE(m_shelf->icons.open.size(), 1);
    QCOMPARE(m_shelf->icons.open.front().path, u"/home/me/logo.svg"_s);
    QCOMPARE(m_shelf->icons.open.front().pixels,
             qRound(64 * m_shelf->window->effectiveDevicePixelRatio()));
}

void ShelfViewTest::otherTiles_stayWhenOneGoes()
{
    m_shelf->put({u"/a"_s, u"/b"_s, u"/c"_s});
    auto* first = m_shelf->tile(0);
    auto* last = m_shelf->tile(2);

    m_shelf->store().removeFromShelf(m_shelf->store().data().shelf.at(1).id);

    QCOMPARE(m_shelf->tile(0), first);
    QCOMPARE(m_shelf->tile(1), last);
}

void ShelfViewTest::twoHundredFiles_makeOnlyTheTilesInSight()
{
    m_shelf->fill(200);

    const auto made = ShownPanel::findAll(m_shelf->list(), u"tile"_s).size();

    QVERIFY(made >= 5);
    QVERIFY2(made < 20, qPrintable(QString::number(made)));
    QVERIFY(m_shelf->icons.open.size() < 20);
}

void ShelfViewTest::longNames_stayInTheirPlace_data()
{
    QTest::addColumn<QString>("name");

    QTest::addRow("a word of sixty letters") << QString(60, u'w');
    QTest::addRow("many words")
        << u"Invoice of the twelfth of November for the homepage, corrected.pdf"_s;
    QTest::addRow("from right to left") << u"فاتورة شهر نوفمبر للعميل الجديد المعدلة مرتين.pdf"_s;
    QTest::addRow("a line break") << u"one\ntwo\nthree\nfour"_s;
    QTest::addRow("a name as long as a disk allows") << QString(255, u'x');
    QTest::addRow("markup") << u"<img src='x'>.png"_s;
}

void ShelfViewTest::longNames_stayInTheirPlace()
{
    QFETCH(QString, name);
    m_shelf->put({u'/' + name});

    const auto place = inScene(m_shelf->part(0, u"name"_s));
    const auto tile = inScene(m_shelf->tile(0));

    QVERIFY(place.height() <= 28);
    QCOMPARE(place.width(), 96.0);
    QVERIFY(tile.contains(place));
    QVERIFY(isNear(place.center().y(), tile.bottom() - 8 - 14));
}

void ShelfViewTest::names_tellWhatIsThere()
{
    m_shelf->files.gone = {u"/home/me/b.png"_s};
    m_shelf->put({u"/home/me/b.png"_s, u"/home/me/a.png"_s});
    auto* first = m_shelf->part(0, u"stop"_s);

    QCOMPARE(toldOf(first), u"a.png"_s);
    QCOMPARE(toldOf(first, QAccessible::Description), u"/home/me/a.png"_s);
    QCOMPARE(toldOf(m_shelf->part(1, u"stop"_s), QAccessible::Description),
             u"/home/me/b.png, missing"_s);
    QCOMPARE(toldOf(m_shelf->part(0, u"remove"_s)), u"Remove a.png"_s);
    QCOMPARE(QAccessible::queryAccessibleInterface(first)->role(), QAccessible::ListItem);
}

QTEST_MAIN(ShelfViewTest)
#include "tst_shelfview.moc"
