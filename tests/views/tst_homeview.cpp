#include "support/hometab.h"
#include "support/plaintexts.h"

#include "brand/brand.h"
#include "views/beat.h"

using namespace Qt::StringLiterals;
using quib::Brand;
using quib::CalendarAuthorization;
using quib::Player;
using quib::Tab;

/// The home tab as its user meets it.
class HomeViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<HomeTab>(); }
    void cleanup() { m_tab.reset(); }

    void noPlayer_saysSo();
    void track_isShown();
    void pausedTrack_showsANote();
    void buttons_sendTheirVerbs_data();
    void buttons_sendTheirVerbs();
    void waveform_movesOnlyWhilePlaying();
    void waveform_restsOutOfSight_data();
    void waveform_restsOutOfSight();
    void texts_areNeverMarkup();

    void calendar_neverAsked_offersToConnect();
    void calendar_connected_showsTheEvents();
    void calendar_denied_saysWhere();
    void calendar_empty_isClear();
    void events_sayWhenAndHowFarOff();
    void distance_countsLive();
    void manyEvents_scroll();

    void timer_isShownAndStopped();
    void timerWithoutClient_saysSo();
    void noTimer_leadsToTheTimeTab();
    void tasks_areTickedOff();
    void noTasks_saysSo();

    void launch_opensItsTarget();
    void editing_removesAnItem();
    void application_isAdded();
    void website_isAddedByKeyboard();
    void website_withoutAddress_addsNothing();
    void escape_leavesTheFields();
    void icons_areThoseOfPaths();
    void manyItems_scroll();

private:
    QString text(const QString& card, const QString& name) { return m_tab->text(card, name); }
    QQuickItem* part(const QString& card, const QString& name) { return m_tab->part(card, name); }
    void click(const QString& card, const QString& name) { m_tab->click(part(card, name)); }
    static QString text(QQuickItem* row, const QString& name)
    {
        return ShownPanel::find(row, name)->property("text").toString();
    }
    /// The clock of the events, which beats once more at that moment.
    void turnClock(const QDateTime& now);
    void startAdding();

    const QString m_music = u"nowPlayingCard"_s;
    const QString m_today = u"todayCard"_s;
    const QString m_focus = u"focusCard"_s;
    const QString m_strip = u"launchStrip"_s;
    std::unique_ptr<HomeTab> m_tab;
};

void HomeViewTest::turnClock(const QDateTime& now)
{
    m_tab->hands.now = now;
    m_tab->item(u"events"_s)->findChild<quib::Beat*>()->setClock(m_tab->hands.clock());
}

void HomeViewTest::noPlayer_saysSo()
{
    QCOMPARE(text(m_music, u"heading"_s), u"Music"_s);
    QCOMPARE(text(m_music, u"title"_s), u"Nothing playing"_s);
    QCOMPARE(text(m_music, u"artist"_s), u"Open Spotify or Music"_s);
    QCOMPARE(part(m_music, u"playPause"_s)->property("symbol").toString(), u"play.fill"_s);
    QVERIFY(part(m_music, u"musicNote"_s)->isVisible());
}

void HomeViewTest::track_isShown()
{
    m_tab->playerSays(Player::Spotify, u"Song||Band||playing"_s);

    QCOMPARE(text(m_music, u"heading"_s), u"Now playing · Spotify"_s);
    QCOMPARE(text(m_music, u"title"_s), u"Song"_s);
    QCOMPARE(text(m_music, u"artist"_s), u"Band"_s);
    QCOMPARE(part(m_music, u"playPause"_s)->property("symbol").toString(), u"pause.fill"_s);
    QVERIFY(part(m_music, u"waveform"_s)->isVisible());
    QVERIFY(!part(m_music, u"musicNote"_s)->isVisible());
}

void HomeViewTest::pausedTrack_showsANote()
{
    m_tab->playerSays(Player::Music, u"Song||Band||paused"_s);

    QCOMPARE(text(m_music, u"heading"_s), u"Now playing · Music"_s);
    QCOMPARE(part(m_music, u"playPause"_s)->property("symbol").toString(), u"play.fill"_s);
    QVERIFY(!part(m_music, u"waveform"_s)->isVisible());
    QVERIFY(part(m_music, u"musicNote"_s)->isVisible());
}

void HomeViewTest::buttons_sendTheirVerbs_data()
{
    QTest::addColumn<QString>("verb");

    QTest::addRow("previous") << u"previous track"_s;
    QTest::addRow("playPause") << u"playpause"_s;
    QTest::addRow("next") << u"next track"_s;
}

void HomeViewTest::buttons_sendTheirVerbs()
{
    QFETCH(QString, verb);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);

    click(m_music, QString::fromLatin1(QTest::currentDataTag()));

    QCOMPARE(m_tab->player.asked.back(), verb + u" to Music"_s);
}

void HomeViewTest::waveform_movesOnlyWhilePlaying()
{
    m_tab->model.setMotionReduced(false);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);
    const auto* waveform = part(m_music, u"waveform"_s);
    const auto lit = [&] { return waveform->property("lit").toInt(); };
    QTRY_VERIFY(lit() < 7);

    m_tab->model.setMotionReduced(true);
    QVERIFY(!waveform->property("moves").toBool());
    QCOMPARE(lit(), 7);
    m_tab->model.setMotionReduced(false);
    QVERIFY(waveform->property("moves").toBool());
    m_tab->playerSays(Player::Music, u"Song||Band||paused"_s);
    QVERIFY(!waveform->property("moves").toBool());
}

void HomeViewTest::waveform_restsOutOfSight_data()
{
    QTest::addColumn<bool>("isCollapsed");

    QTest::addRow("collapsed") << true;
    QTest::addRow("another tab") << false;
}

void HomeViewTest::waveform_restsOutOfSight()
{
    QFETCH(bool, isCollapsed);
    m_tab->model.setMotionReduced(false);
    m_tab->playerSays(Player::Music, u"Song||Band||playing"_s);
    auto* timer = part(m_music, u"waveform"_s)->findChild<QObject*>(u"steps"_s);
    QVERIFY(timer->property("running").toBool());

    if (isCollapsed) {
        m_tab->model.setExpanded(false);
    } else {
        m_tab->model.setTab(Tab::Tasks);
    }

    QTRY_VERIFY(!timer->property("running").toBool());
}

void HomeViewTest::texts_areNeverMarkup()
{
    const auto markup = u"<b>bold</b> <img src='http://example.com/a.png'>"_s;
    m_tab->playerSays(Player::Music, markup + u"||"_s + markup + u"||playing"_s);
    m_tab->grant({m_tab->event(markup, 5)});
    m_tab->store().startTimer(m_tab->workspace.client(markup), markup);
    m_tab->workspace.task(markup);
    m_tab->launch(markup, markup);
    m_tab->move(part(m_strip, u"launch"_s));
    auto* toolTip = part(m_strip, u"launch"_s)->property("toolTip").value<QObject*>();
    QTRY_VERIFY(toolTip->property("opened").toBool());

    const auto texts = textItems(*m_tab->window->contentItem());

    int hostile = 0;
    for (const auto* text : texts) {
        QVERIFY2(isPlain(*text), qPrintable(text->property("text").toString()));
        hostile += text->property("text").toString() == markup ? 1 : 0;
    }
    QVERIFY(hostile >= 7); // Title, artist, event, client, task, launch button and its tooltip.
}

void HomeViewTest::calendar_neverAsked_offersToConnect()
{
    QCOMPARE(text(m_today, u"heading"_s), u"Today"_s);
    QCOMPARE(text(m_today, u"message"_s), u"See today's meetings and calls here."_s);
    QVERIFY(!part(m_today, u"left"_s)->isVisible());

    m_tab->calendars.authorizations.front()(CalendarAuthorization::WriteOnly);

    QVERIFY(part(m_today, u"connect"_s)->isVisible());
    QCOMPARE(part(m_today, u"connect"_s)->property("title").toString(), u"Connect Calendar"_s);
    QCOMPARE(part(m_today, u"connect"_s)->property("fill").value<QColor>(), Brand::purple());
}

void HomeViewTest::calendar_connected_showsTheEvents()
{
    click(m_today, u"connect"_s);
    auto& calendars = m_tab->calendars;
    QCOMPARE(calendars.requests.size(), 1);

    calendars.requests.front()(true);
    calendars.readings.back().answer({m_tab->event(u"Call"_s, 5)});
    m_tab->settle();

    QVERIFY(!part(m_today, u"connect"_s)->isVisible());
    QCOMPARE(text(m_today, u"left"_s), u"1 left"_s);
    QCOMPARE(m_tab->rows(m_today, u"event"_s).size(), 1);
}

void HomeViewTest::calendar_denied_saysWhere()
{
    m_tab->calendars.authorizations.front()(CalendarAuthorization::Denied);

    QCOMPARE(text(m_today, u"message"_s),
             u"Calendar access is off. Turn it on in System Settings › Privacy & Security › "
             "Calendars."_s);
    QVERIFY(!part(m_today, u"connect"_s)->isVisible());
    QVERIFY(!part(m_today, u"left"_s)->isVisible());
}

void HomeViewTest::calendar_empty_isClear()
{
    m_tab->grant({});

    QCOMPARE(text(m_today, u"message"_s), u"Clear for the rest of the day"_s);
    QCOMPARE(text(m_today, u"left"_s), u"0 left"_s);
    QVERIFY(part(m_today, u"left"_s)->isVisible());
}

void HomeViewTest::events_sayWhenAndHowFarOff()
{
    auto allDay = m_tab->event(u"Fair"_s, -60);
    allDay.isAllDay = true;
    m_tab->grant({allDay, m_tab->event(u"Call"_s, 5)});
    const auto rows = m_tab->rows(m_today, u"event"_s);
    QCOMPARE(rows.size(), 2);

    turnClock(m_tab->hands.now);
    QCOMPARE(text(rows[0], u"time"_s), u"All day"_s);
    QVERIFY(!ShownPanel::find(rows[0], u"distance"_s)->isVisible());
    QVERIFY(ShownPanel::find(rows[1], u"distance"_s)->isVisible());
    QCOMPARE(text(rows[1], u"time"_s), u"9:05\u202FAM"_s);
    QCOMPARE(text(rows[1], u"distanceText"_s), u"5 min"_s);
}

void HomeViewTest::distance_countsLive()
{
    m_tab->grant({m_tab->event(u"Call"_s, 5)});
    auto* row = m_tab->rows(m_today, u"event"_s).front();
    turnClock(m_tab->hands.now.addMSecs(400));
    QCOMPARE(text(row, u"distanceText"_s), u"4 min, 59 sec"_s);

    turnClock(m_tab->hands.now.addMSecs(995));
    m_tab->hands.now = m_tab->hands.now.addMSecs(1005);

    QTRY_COMPARE(text(row, u"distanceText"_s), u"4 min, 58 sec"_s);
}

void HomeViewTest::manyEvents_scroll()
{
    QList<quib::CalendarEntry> events;
    for (int number = 0; number < 200; ++number) {
        events << m_tab->event(u"Meeting %1"_s.arg(number), number);
    }
    m_tab->grant(events);

    QCOMPARE(text(m_today, u"left"_s), u"200 left"_s);
    auto* list = m_tab->item(u"events"_s);
    QVERIFY(list->property("overflows").toBool());
    list->forceActiveFocus(Qt::TabFocusReason);
    m_tab->press(Qt::Key_End);
    QVERIFY(list->property("atYEnd").toBool());
}

void HomeViewTest::timer_isShownAndStopped()
{
    const auto cafe = m_tab->workspace.client(u"Café"_s);
    m_tab->store().startTimer(cafe, {});
    m_tab->settle();
    QCOMPARE(text(m_focus, u"client"_s), u"Café"_s);
    QVERIFY(part(m_focus, u"running"_s)->isVisible());
    QCOMPARE(part(m_focus, u"stop"_s)->property("help").toString(), u"Stop timer"_s);

    click(m_focus, u"stop"_s);

    QVERIFY(!m_tab->store().hasRunningEntry());
    QVERIFY(part(m_focus, u"start"_s)->isVisible());
}

void HomeViewTest::timerWithoutClient_saysSo()
{
    m_tab->store().startTimer({}, {});

    QCOMPARE(text(m_focus, u"client"_s), u"No client"_s);
}

void HomeViewTest::noTimer_leadsToTheTimeTab()
{
    click(m_focus, u"start"_s);

    QCOMPARE(m_tab->model.tab(), Tab::Time);
    QVERIFY(!m_tab->store().hasRunningEntry());
}

void HomeViewTest::tasks_areTickedOff()
{
    for (const auto& title : {u"a"_s, u"b"_s, u"c"_s, u"d"_s}) {
        m_tab->workspace.task(title);
    }
    m_tab->settle();
    QCOMPARE(m_tab->rows(m_focus, u"task"_s).size(), 3);

    m_tab->click(ShownPanel::find(m_tab->rows(m_focus, u"task"_s).front(), u"tick"_s));

    QVERIFY(m_tab->store().data().tasks.front().done);
    QCOMPARE(m_tab->rows(m_focus, u"task"_s).size(), 3);
    QVERIFY(!part(m_focus, u"nothing"_s)->isVisible());
}

void HomeViewTest::noTasks_saysSo()
{
    QVERIFY(part(m_focus, u"nothing"_s)->isVisible());
    QCOMPARE(text(m_focus, u"nothing"_s), u"No open tasks"_s);
}

void HomeViewTest::launch_opensItsTarget()
{
    m_tab->launch(u"Mail"_s, u"mail.example"_s);

    click(m_strip, u"launch"_s);

    QCOMPARE(m_tab->opener.asked, QStringList{u"browse https://mail.example"_s});
}

void HomeViewTest::editing_removesAnItem()
{
    m_tab->launch(u"Mail"_s, u"mail.example"_s);
    QVERIFY(!part(m_strip, u"remove"_s)->isVisible());
    QCOMPARE(part(m_strip, u"edit"_s)->property("symbol").toString(), u"slider.horizontal.3"_s);
    click(m_strip, u"edit"_s);
    m_tab->settle();
    QCOMPARE(part(m_strip, u"edit"_s)->property("symbol").toString(), u"checkmark"_s);

    click(m_strip, u"remove"_s);

    QVERIFY(m_tab->store().data().launch.isEmpty());
}

void HomeViewTest::application_isAdded()
{
    click(m_strip, u"edit"_s);
    m_tab->settle();

    click(m_strip, u"addApplication"_s);
    m_tab->commands.choices.front()(QUrl::fromLocalFile(u"/opt/a.desktop"_s));

    QCOMPARE(m_tab->store().data().launch.back().target, u"/opt/a.desktop"_s);
    QCOMPARE(m_tab->store().data().launch.back().name, u"the application at /opt/a.desktop"_s);
}

void HomeViewTest::startAdding()
{
    click(m_strip, u"edit"_s);
    m_tab->settle();
    click(m_strip, u"addLink"_s);
    m_tab->settle();
}

void HomeViewTest::website_isAddedByKeyboard()
{
    startAdding();
    QCOMPARE(m_tab->commands.asked, QStringList{u"take keyboard"_s});
    QVERIFY(part(m_strip, u"linkFields"_s)->isVisible());

    m_tab->press(Qt::Key_Tab);
    m_tab->type(u"Shop.Example.COM/admin"_s);
    m_tab->press(Qt::Key_Return);

    const auto& item = m_tab->store().data().launch.back();
    QCOMPARE(item.name, u"Shop.Example.COM"_s);
    QCOMPARE(item.target, u"Shop.Example.COM/admin"_s);
    QVERIFY(!part(m_strip, u"linkFields"_s)->isVisible());
    QCOMPARE(text(m_strip, u"newURL"_s), QString());
}

void HomeViewTest::website_withoutAddress_addsNothing()
{
    startAdding();

    m_tab->type(u"A name"_s);
    m_tab->press(Qt::Key_Return);

    QVERIFY(m_tab->store().data().launch.isEmpty());
    QVERIFY(part(m_strip, u"linkFields"_s)->isVisible());
    QCOMPARE(text(m_strip, u"newName"_s), u"A name"_s);
}

void HomeViewTest::escape_leavesTheFields()
{
    startAdding();

    m_tab->press(Qt::Key_Escape);

    QVERIFY(!part(m_strip, u"linkFields"_s)->isVisible());
    QVERIFY(m_tab->model.isExpanded());
}

void HomeViewTest::icons_areThoseOfPaths()
{
    m_tab->launch(u"Mail"_s, u"mail.example"_s);
    m_tab->launch(u"Files"_s, u"/usr/share/applications/files.desktop"_s);
    const auto rows = m_tab->rows(m_strip, u"item"_s);

    QVERIFY(ShownPanel::find(rows[0], u"globe"_s)->isVisible());
    QVERIFY(!ShownPanel::find(rows[1], u"globe"_s)->isVisible());
    QCOMPARE(m_tab->icons.open.size(), 1);
    QCOMPARE(m_tab->icons.open.front().path, u"/usr/share/applications/files.desktop"_s);
}

void HomeViewTest::manyItems_scroll()
{
    for (int number = 0; number < 40; ++number) {
        m_tab->launch(u"A website with a rather long name, number %1"_s.arg(number),
                      u"a.example"_s);
    }
    const auto* list = m_tab->item(u"items"_s);

    QVERIFY(list->property("contentWidth").toDouble() > list->width());
    for (const auto* row : m_tab->rows(m_strip, u"item"_s)) {
        QVERIFY(inScene(row).width() <= 12 + 16 + 7 + 140 + 12);
    }
    QVERIFY(part(m_strip, u"edit"_s)->isVisible());
}

QTEST_MAIN(HomeViewTest)
#include "tst_homeview.moc"
