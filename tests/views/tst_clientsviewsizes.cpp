#include "support/shownpanel.h"

#include "brand/brand.h"
#include "views/noclient.h"

#include <QFont>

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::ClientStatus;
using quib::Tab;

/// Every number of the client book, read from the live items.
class ClientsViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void columns_haveTheirPlaces();
    void header_hasItsSizes();
    void row_hasItsSizes();
    void row_isFilledByItsState();
    void timedRow_hasItsMark();
    void badge_hasItsSizes();
    void noClient_isCentred();
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
    QQuickItem* item(const QString& name) { return m_panel->item(name); }
    QQuickItem* part(QQuickItem* of, const QString& name) { return ShownPanel::find(of, name); }
    QQuickItem* button(const QString& name) { return part(item(u"actions"_s), name); }
    QQuickItem* row(int number);
    QRectF rect(const QString& name) { return m_panel->rect(name); }
    quib::Store& store() { return *m_panel->workspace.store; }
    void edit(const std::function<void(quib::Client&)>& change);

    std::unique_ptr<ShownPanel> m_panel;
    QUuid m_cafe;
};

namespace {

double sizeOf(const QQuickItem* item)
{
    return numberOf(item, "size");
}

} // namespace

void ClientsViewSizesTest::init()
{
    m_panel = std::make_unique<ShownPanel>();
    m_cafe = m_panel->workspace.client(u"Café"_s, ClientStatus::Build);
    m_panel->workspace.client(u"Bloom"_s, ClientStatus::Live);
    m_panel->open(Tab::Clients);
    item(u"clientsView"_s)->setProperty("selection", m_cafe);
    m_panel->settle();
}

QQuickItem* ClientsViewSizesTest::row(int number)
{
    QQuickItem* found = nullptr;
    auto* list = item(u"clientList"_s);
    QMetaObject::invokeMethod(list, "forceLayout");
    QMetaObject::invokeMethod(list, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, found),
                              Q_ARG(int, number));
    return found;
}

void ClientsViewSizesTest::edit(const std::function<void(quib::Client&)>& change)
{
    auto client = *store().client(m_cafe);
    change(client);
    store().updateClient(client);
    m_panel->settle();
}

void ClientsViewSizesTest::columns_haveTheirPlaces()
{
    const auto list = rect(u"clients"_s);
    const auto detail = rect(u"detailColumn"_s);
    const auto area = rect(u"tabArea"_s);

    QCOMPARE(list.width(), 220.0);
    QCOMPARE(list.left(), area.left());
    QCOMPARE(list.bottom(), area.bottom());
    QVERIFY(detail.left() > list.right());
    QCOMPARE(detail.right(), area.right());
    QCOMPARE(rect(u"clientDetail"_s), detail);
    QCOMPARE(numberOf(part(item(u"clients"_s), u"surface"_s), "radius"), 14.0);
}

void ClientsViewSizesTest::header_hasItsSizes()
{
    auto* add = item(u"addClient"_s);
    const auto* heading = item(u"heading"_s);

    QCOMPARE(textOf(heading, "text"), u"2 clients"_s);
    QCOMPARE(sizeOf(heading), 9.5);
    QVERIFY(heading->property("capitals").toBool());
    QCOMPARE(rect(u"heading"_s).left(), rect(u"clientList"_s).left() + 6);
    QCOMPARE(textOf(add, "symbol"), u"plus"_s);
    QCOMPARE(sizeOf(add), 12.0);
    QCOMPARE(add->size(), QSizeF(26, 26));
    QCOMPARE(textOf(add, "help"), u"Add client"_s);
    QCOMPARE(rect(u"addClient"_s).right(), rect(u"clientList"_s).right());
    QVERIFY(rect(u"clientList"_s).top() >= rect(u"addClient"_s).bottom());
}

void ClientsViewSizesTest::row_hasItsSizes()
{
    const auto frame = inScene(row(0));
    auto* dot = part(row(0), u"dot"_s);
    auto* name = part(row(0), u"name"_s);
    const auto dotFrame = inScene(dot);

    QCOMPARE(dotFrame.size(), QSizeF(8, 8));
    QCOMPARE(numberOf(dot, "radius"), 4.0);
    QCOMPARE(dotFrame.left(), frame.left() + 8);
    QCOMPARE(colorOf(dot), Brand::color(u"build"_s));
    QCOMPARE(sizeOf(name), 12.0);
    QCOMPARE(name->property("weight").toInt(), int(QFont::Medium));
    QCOMPARE(frame.height(), name->implicitHeight() + 12);
    QVERIFY(qAbs(dotFrame.center().y() - frame.center().y()) <= 0.5); // On whole points.
}

void ClientsViewSizesTest::row_isFilledByItsState()
{
    const auto* selected = part(row(0), u"surface"_s);
    QCOMPARE(numberOf(selected, "radius"), 8.0);
    QCOMPARE(inScene(selected), inScene(row(0)));
    QCOMPARE(colorOf(selected), Brand::purple());
    QCOMPARE(selected->opacity(), 0.35);

    const auto* other = part(row(1), u"surface"_s);
    QCOMPARE(other->opacity(), 0.0);
    m_panel->move(row(1));
    QTRY_COMPARE(other->opacity(), 0.06);
    QCOMPARE(colorOf(other), QColor(Qt::white));
}

void ClientsViewSizesTest::timedRow_hasItsMark()
{
    store().startTimer(m_cafe, {});
    m_panel->settle();

    const auto* mark = part(row(0), u"timed"_s);

    QCOMPARE(textOf(mark, "name"), u"stopwatch.fill"_s);
    QCOMPARE(sizeOf(mark), 10.0);
    QCOMPARE(colorOf(mark), Brand::live());
    QCOMPARE(inScene(mark).right(), inScene(row(0)).right() - 8);
}

void ClientsViewSizesTest::badge_hasItsSizes()
{
    m_panel->workspace.task(u"x"_s, m_cafe);
    m_panel->settle();

    const auto badge = inScene(part(row(0), u"badge"_s));
    const auto* count = part(row(0), u"openTasks"_s);
    const auto* capsule = part(row(0), u"capsule"_s);
    const auto digits = inScene(count);

    QCOMPARE(textOf(count, "text"), u"1"_s);
    QCOMPARE(sizeOf(count), 10.0);
    QCOMPARE(count->property("weight").toInt(), int(QFont::DemiBold));
    QCOMPARE(colorOf(count), Brand::muted());
    QCOMPARE(digits.left(), badge.left() + 5);
    QCOMPARE(digits.right(), badge.right() - 5);
    QCOMPARE(badge.right(), inScene(row(0)).right() - 8);
    QCOMPARE(inScene(capsule), badge);
    QCOMPARE(colorOf(capsule), Brand::white(0.08));
    QCOMPARE(numberOf(capsule, "radius"), badge.height() / 2);
}

void ClientsViewSizesTest::noClient_isCentred()
{
    item(u"clientsView"_s)->setProperty("selection", quib::NoClient::id());

    const auto text = rect(u"noClient"_s).center();
    const auto column = rect(u"detailColumn"_s).center();

    QCOMPARE(colorOf(item(u"noClient"_s)), Brand::muted());
    QVERIFY(qAbs(text.x() - column.x()) <= 0.5 && qAbs(text.y() - column.y()) <= 0.5);
}

void ClientsViewSizesTest::editor_goesFromTopToBottom()
{
    const QStringList fromTop{u"nameField"_s,  u"status"_s,  u"siteURL"_s,
                              u"folderPath"_s, u"actions"_s, u"notes"_s};

    for (qsizetype number = 1; number < fromTop.size(); ++number) {
        QVERIFY(rect(fromTop.at(number - 1)).bottom() < rect(fromTop.at(number)).top());
    }
    QCOMPARE(rect(u"nameField"_s).top(), rect(u"detailColumn"_s).top());
    QCOMPARE(rect(u"notes"_s).bottom(), rect(u"detailColumn"_s).bottom());
}

void ClientsViewSizesTest::name_isPlain()
{
    auto* name = item(u"nameField"_s);

    QCOMPARE(textOf(name, "placeholder"), u"Client name"_s);
    QCOMPARE(sizeOf(name), 16.0);
    QCOMPARE(colorOf(part(name, u"surface"_s)).alpha(), 0);
    QCOMPARE(rect(u"nameField"_s).width(), rect(u"detailColumn"_s).width());
}

void ClientsViewSizesTest::status_hasItsSizes_data()
{
    QTest::addColumn<ClientStatus>("status");
    QTest::addColumn<QString>("title");

    for (const auto status : quib::AllClientStatuses) {
        QTest::addRow("%s", qPrintable(rawText(status))) << status << quib::title(status);
    }
}

void ClientsViewSizesTest::status_hasItsSizes()
{
    QFETCH(ClientStatus, status);
    edit([&](quib::Client& client) { client.status = status; });

    auto* picker = item(u"status"_s);
    const auto* title = part(picker, u"title"_s);
    const auto* capsule = part(picker, u"capsule"_s);
    const auto frame = rect(u"status"_s);

    QTEST(textOf(title, "text"), "title");
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

void ClientsViewSizesTest::websiteAndRate_haveTheirSizes()
{
    for (const auto& [field, placeholder] :
         {std::pair(u"siteURL"_s, u"Website URL"_s), std::pair(u"rate"_s, u"Rate"_s)}) {
        auto* made = item(field);
        QCOMPARE(textOf(made, "placeholder"), placeholder);
        QCOMPARE(sizeOf(made), 10.5);
        QCOMPARE(numberOf(made, "horizontalPadding"), 9.0);
        QCOMPARE(numberOf(made, "verticalPadding"), 6.0);
        QCOMPARE(colorOf(part(made, u"surface"_s)), Brand::white(0.07));
        QCOMPARE(numberOf(part(made, u"surface"_s), "radius"), 8.0);
    }
    const auto globe = rect(u"globe"_s);
    const auto sterling = rect(u"sterlingsign.circle"_s);

    QCOMPARE(colorOf(item(u"globe"_s)), Brand::muted2());
    QCOMPARE(textOf(item(u"globe"_s), "name"), u"globe"_s);
    QCOMPARE(textOf(item(u"sterlingsign.circle"_s), "name"), u"sterlingsign.circle"_s);
    QVERIFY(globe.right() < rect(u"siteURL"_s).left());
    QVERIFY(rect(u"siteURL"_s).right() < sterling.left());
    QVERIFY(sterling.right() < rect(u"rate"_s).left());
    QCOMPARE(rect(u"rate"_s).right(), rect(u"detailColumn"_s).right());
}

void ClientsViewSizesTest::folder_hasItsSizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");

    QTest::addRow("none") << QString() << u"No project folder"_s << Brand::muted2();
    QTest::addRow("one") << u"/work/café"_s << u"/work/café"_s << QColor(Qt::white);
}

void ClientsViewSizesTest::folder_hasItsSizes()
{
    QFETCH(QString, path);
    edit([&](quib::Client& client) { client.folderPath = path; });

    const auto* text = item(u"folderPath"_s);
    const auto* choose = item(u"chooseFolder"_s);

    QTEST(textOf(text, "text"), "text");
    QTEST(colorOf(text), "color");
    QCOMPARE(sizeOf(text), 11.0);
    QCOMPARE(textOf(choose, "symbol"), u"ellipsis.circle"_s);
    QCOMPARE(textOf(choose, "help"), u"Choose folder"_s);
    QVERIFY(rect(u"folderMark"_s).right() < rect(u"folderPath"_s).left());
    QVERIFY(rect(u"folderPath"_s).right() <= rect(u"chooseFolder"_s).left());
    QVERIFY(rect(u"chooseFolder"_s).left() - rect(u"folderPath"_s).right() < 10);
}

void ClientsViewSizesTest::buttons_haveTheirLooks()
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
        QCOMPARE(button(name)->property("fill").value<QColor>(), Brand::white(0.14));
    }
    QCOMPARE(button(u"track"_s)->property("fill").value<QColor>(), Brand::purple());

    store().startTimer(m_cafe, {});
    QCOMPARE(textOf(button(u"track"_s), "title"), u"Stop"_s);
    auto red = Brand::red();
    red.setAlphaF(0.7F);
    QCOMPARE(button(u"track"_s)->property("fill").value<QColor>().rgba(), red.rgba());
}

void ClientsViewSizesTest::deleteButton_hasItsLooks()
{
    auto* remove = item(u"delete"_s);
    QCOMPARE(sizeOf(remove), 12.0);
    QCOMPARE(remove->size(), QSizeF(26, 26));
    QCOMPARE(textOf(remove, "symbol"), u"trash"_s);
    QCOMPARE(remove->property("tint").value<QColor>(), Brand::muted2());

    m_panel->click(remove);

    QCOMPARE(textOf(remove, "symbol"), u"trash.fill"_s);
    QCOMPARE(remove->property("tint").value<QColor>(), Brand::red());
}

void ClientsViewSizesTest::notes_takeWhatRemains()
{
    const auto notes = rect(u"notes"_s);

    QCOMPARE(textOf(item(u"notes"_s), "placeholder"), u"Notes — contact, package, next step…"_s);
    QCOMPARE(notes.width(), rect(u"detailColumn"_s).width());
    QVERIFY(notes.height() > 60);
}

void ClientsViewSizesTest::everything_staysInsideTheCard()
{
    edit([](quib::Client& client) {
        client.name = client.siteURL = client.folderPath = QString(200, u'w');
        client.hourlyRate = 100000.0 / 3;
        client.notes = u"line\n"_s.repeated(100);
    });
    const auto area = rect(u"tabArea"_s);

    for (const auto& name : {u"nameField"_s, u"status"_s, u"siteURL"_s, u"rate"_s, u"folderPath"_s,
                             u"chooseFolder"_s, u"actions"_s, u"delete"_s, u"notes"_s}) {
        QVERIFY2(area.contains(rect(name)), qPrintable(name));
    }
    QVERIFY(rect(u"actions"_s).right() < rect(u"delete"_s).left());
}

QTEST_MAIN(ClientsViewSizesTest)
#include "tst_clientsviewsizes.moc"
