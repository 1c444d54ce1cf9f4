#include "support/clientbook.h"

#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;

/// Every number of an open client, read from the live items.
class ClientDetailSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<ClientBook>();
        m_book->select(m_book->cafe);
        m_book->settle();
    }
    void cleanup() { m_book.reset(); }

    void editor_goesFromTopToBottom();
    void name_isPlain();
    void status_hasItsSizes_data();
    void status_hasItsSizes();
    void websiteAndRate_haveTheirSizes();
    void folder_hasItsSizes_data();
    void folder_hasItsSizes();
    void buttons_haveTheirLooks();
    void deleteButton_hasItsLooks();
    void notes_takeWhatRemains();
    void everything_staysInsideTheCard();

private:
    static double sizeOf(const QQuickItem* item) { return numberOf(item, "size"); }
    QQuickItem* button(const QString& name)
    {
        return ShownPanel::find(m_book->item(u"actions"_s), name);
    }
    void edit(const std::function<void(quib::Client&)>& change);

    std::unique_ptr<ClientBook> m_book;
};

void ClientDetailSizesTest::edit(const std::function<void(quib::Client&)>& change)
{
    m_book->change(m_book->cafe, change);
    m_book->settle();
}

void ClientDetailSizesTest::editor_goesFromTopToBottom()
{
    const QStringList fromTop{u"nameField"_s,  u"status"_s,  u"siteURL"_s,
                              u"folderPath"_s, u"actions"_s, u"notes"_s};

    for (qsizetype number = 1; number < fromTop.size(); ++number) {
        QVERIFY(m_book->rect(fromTop.at(number - 1)).bottom()
                < m_book->rect(fromTop.at(number)).top());
    }
    QCOMPARE(m_book->rect(u"nameField"_s).top(), m_book->rect(u"detailColumn"_s).top());
    QCOMPARE(m_book->rect(u"notes"_s).bottom(), m_book->rect(u"detailColumn"_s).bottom());
}

void ClientDetailSizesTest::name_isPlain()
{
    auto* name = m_book->item(u"nameField"_s);

    QCOMPARE(textOf(name, "placeholder"), u"Client name"_s);
    QCOMPARE(sizeOf(name), 16.0);
    QCOMPARE(colorOf(ShownPanel::find(name, u"surface"_s)).alpha(), 0);
    QCOMPARE(m_book->rect(u"nameField"_s).width(), m_book->rect(u"detailColumn"_s).width());
}

void ClientDetailSizesTest::status_hasItsSizes_data()
{
    QTest::addColumn<ClientStatus>("status");
    QTest::addColumn<QString>("title");

    for (const auto status : quib::AllClientStatuses) {
        QTest::addRow("%s", qPrintable(rawText(status))) << status << quib::title(status);
    }
}

void ClientDetailSizesTest::status_hasItsSizes()
{
    QFETCH(ClientStatus, status);
    edit([&](quib::Client& client) { client.status = status; });

    auto* picker = m_book->item(u"status"_s);
    const auto* title = ShownPanel::find(picker, u"title"_s);
    const auto* capsule = ShownPanel::find(picker, u"capsule"_s);
    const auto frame = m_book->rect(u"status"_s);

    QTEST(textOf(title), "title");
    QCOMPARE(sizeOf(title), 10.5);
    QCOMPARE(colorOf(title),
             status == ClientStatus::Build ? Brand::glow() : Brand::color(rawText(status)));
    QCOMPARE(inScene(title), frame.adjusted(8, 3, -8, -3));
    QVERIFY(frame.width() - title->implicitWidth() - 16 < 1); // On whole points.
    QVERIFY(frame.height() - title->implicitHeight() - 6 < 1);
    QCOMPARE(inScene(capsule), frame);
    QCOMPARE(colorOf(capsule), Brand::color(rawText(status)));
    QCOMPARE(capsule->opacity(), 0.15);
    QCOMPARE(numberOf(capsule, "radius"), frame.height() / 2);
}

void ClientDetailSizesTest::websiteAndRate_haveTheirSizes()
{
    for (const auto& [field, placeholder] :
         {std::pair(u"siteURL"_s, u"Website URL"_s), std::pair(u"rate"_s, u"Rate"_s)}) {
        auto* made = m_book->item(field);
        QCOMPARE(textOf(made, "placeholder"), placeholder);
        QCOMPARE(sizeOf(made), 10.5);
        QCOMPARE(numberOf(made, "horizontalPadding"), 9.0);
        QCOMPARE(numberOf(made, "verticalPadding"), 6.0);
        QCOMPARE(colorOf(ShownPanel::find(made, u"surface"_s)), Brand::white(0.07));
        QCOMPARE(numberOf(ShownPanel::find(made, u"surface"_s), "radius"), 8.0);
    }
    const auto globe = m_book->rect(u"globe"_s);
    const auto sterling = m_book->rect(u"sterlingsign.circle"_s);

    QCOMPARE(colorOf(m_book->item(u"globe"_s)), Brand::muted2());
    QCOMPARE(textOf(m_book->item(u"globe"_s), "name"), u"globe"_s);
    QCOMPARE(textOf(m_book->item(u"sterlingsign.circle"_s), "name"), u"sterlingsign.circle"_s);
    QVERIFY(globe.right() < m_book->rect(u"siteURL"_s).left());
    QVERIFY(m_book->rect(u"siteURL"_s).right() < sterling.left());
    QVERIFY(sterling.right() < m_book->rect(u"rate"_s).left());
    QCOMPARE(m_book->rect(u"rate"_s).right(), m_book->rect(u"detailColumn"_s).right());
}

void ClientDetailSizesTest::folder_hasItsSizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");

    QTest::addRow("none") << QString() << u"No project folder"_s << Brand::muted2();
    QTest::addRow("one") << u"/work/café"_s << u"/work/café"_s << QColor(Qt::white);
}

void ClientDetailSizesTest::folder_hasItsSizes()
{
    QFETCH(QString, path);
    edit([&](quib::Client& client) { client.folderPath = path; });

    const auto* text = m_book->item(u"folderPath"_s);
    const auto* choose = m_book->item(u"chooseFolder"_s);

    QTEST(textOf(text), "text");
    QTEST(colorOf(text), "color");
    QCOMPARE(sizeOf(text), 11.0);
    QCOMPARE(textOf(choose, "symbol"), u"ellipsis.circle"_s);
    QCOMPARE(textOf(choose, "help"), u"Choose folder"_s);
    QVERIFY(m_book->rect(u"folderMark"_s).right() < m_book->rect(u"folderPath"_s).left());
    QVERIFY(m_book->rect(u"folderPath"_s).right() <= m_book->rect(u"chooseFolder"_s).left());
    QVERIFY(m_book->rect(u"chooseFolder"_s).left() - m_book->rect(u"folderPath"_s).right() < 10);
}

void ClientDetailSizesTest::buttons_haveTheirLooks()
{
    edit([](quib::Client& client) {
        client.siteURL = u"cafe.example"_s;
        client.folderPath = u"/work"_s;
    });
    const auto look = [&](const QString& name) {
        const auto* made = button(name);
        return textOf(made, "title") + u'|' + textOf(made, "symbol");
    };

    QCOMPARE(look(u"site"_s), u"Site|safari"_s);
    QCOMPARE(look(u"folder"_s), u"Folder|"_s);
    QCOMPARE(look(u"code"_s), u"Code|chevron.left.forwardslash.chevron.right"_s);
    QCOMPARE(textOf(button(u"track"_s), "title"), u"Track time"_s);
    for (const auto& name : {u"site"_s, u"folder"_s, u"code"_s}) {
        QCOMPARE(colorOf(button(name), "fill"), Brand::white(0.14));
    }
    QCOMPARE(colorOf(button(u"track"_s), "fill"), Brand::purple());

    m_book->store().startTimer(m_book->cafe, {});
    QCOMPARE(textOf(button(u"track"_s), "title"), u"Stop"_s);
    auto red = Brand::red();
    red.setAlphaF(0.7F);
    QCOMPARE(colorOf(button(u"track"_s), "fill").rgba(), red.rgba());
}

void ClientDetailSizesTest::deleteButton_hasItsLooks()
{
    auto* remove = m_book->item(u"delete"_s);
    QCOMPARE(sizeOf(remove), 12.0);
    QCOMPARE(remove->size(), QSizeF(26, 26));
    QCOMPARE(textOf(remove, "symbol"), u"trash"_s);
    QCOMPARE(colorOf(remove, "tint"), Brand::muted2());

    m_book->click(remove);

    QCOMPARE(textOf(remove, "symbol"), u"trash.fill"_s);
    QCOMPARE(colorOf(remove, "tint"), Brand::red());
}

void ClientDetailSizesTest::notes_takeWhatRemains()
{
    const auto notes = m_book->rect(u"notes"_s);

    QCOMPARE(textOf(m_book->item(u"notes"_s), "placeholder"),
             u"Notes — contact, package, next step…"_s);
    QCOMPARE(notes.width(), m_book->rect(u"detailColumn"_s).width());
    QVERIFY(notes.height() > 60);
}

void ClientDetailSizesTest::everything_staysInsideTheCard()
{
    edit([](quib::Client& client) {
        client.name = client.siteURL = client.folderPath = QString(200, u'w');
        client.hourlyRate = 100000.0 / 3;
        client.notes = u"line\n"_s.repeated(100);
    });
    const auto area = m_book->rect(u"tabArea"_s);

    for (const auto& name : {u"nameField"_s, u"status"_s, u"siteURL"_s, u"rate"_s, u"folderPath"_s,
                             u"chooseFolder"_s, u"actions"_s, u"delete"_s, u"notes"_s}) {
        QVERIFY2(area.contains(m_book->rect(name)), qPrintable(name));
    }
    QVERIFY(m_book->rect(u"actions"_s).right() < m_book->rect(u"delete"_s).left());
}

QTEST_MAIN(ClientDetailSizesTest)
#include "tst_clientdetailsizes.moc"
