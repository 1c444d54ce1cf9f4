#include "pictures/panelforpicture.h"

#include "app/notchpanel.h"
#include "model/file/datafile.h"
#include "platform/linux/files/diskprobe.h"
#include "platform/linux/icons/themeiconsource.h"
#include "shortcuts/shortcuts.h"
#include "support/writefile.h"
#include "views/motion/beat.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds Patience = 20s; // For a busy machine.

std::unique_ptr<quib::IconSource> iconsOfTheTheme()
{
    auto icons = std::make_unique<quib::ThemeIconSource>(Patience);
    icons->setTheme(u"Adwaita"_s);
    return icons;
}

/// Writes the files of a workspace where the program looks for them.
void putFiles(const Day& day, const QString& folder)
{
    qputenv("QUIB_DATA_DIR", QFile::encodeName(folder));
    writeFile(folder + u"/data.json"_s, quib::encodeQuibData(day.data).value());
    for (const auto& version : day.shortcuts) {
        writeFile(folder + u"/shortcuts.json"_s, version);
        quib::Shortcuts::shared().reload();
    }
}

void stopBeats(const QQuickItem* below, const quib::Clock& clock)
{
    for (auto* beat : below->findChildren<quib::Beat*>(Qt::FindDirectChildrenOnly)) {
        beat->setClock(clock);
    }
    for (const auto* child : below->childItems()) {
        stopBeats(child, clock);
    }
}

} // namespace

PanelForPicture::PanelForPicture(const Day& day, const QString& folder,
                                 std::optional<quib::Tab> tab)
{
    putFiles(day, folder);
    m_hands.now = Now;
    m_shell.platform.icons = iconsOfTheTheme();
    m_shell.platform.files = std::make_unique<quib::DiskProbe>(Patience);
    m_delegate = std::make_unique<quib::AppDelegate>(std::move(m_shell.platform), m_hands.clock(),
                                                     m_hands.scheduler());
    m_delegate->life().layout();
    [[maybe_unused]] const auto& loaded = m_delegate->store().data(); // Waits for it.
    tell(day);
    model().setMotionReduced(true);
    model().setTab(tab.value_or(quib::Tab::Home));
    model().setExpanded(tab.has_value());
    m_panel = std::make_unique<quib::OffscreenPanel>(m_delegate->viewContext());
    stopBeats(m_panel->root(), m_hands.clock());
}

void PanelForPicture::click(QPointF at)
{
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, at, at, Qt::LeftButton, held, {});
        QCoreApplication::sendEvent(&m_panel->window(), &event);
    }
}

QImage PanelForPicture::picture()
{
    const auto& platform = m_delegate->platform();
    m_panel->picture(); // Asks for the icons of what is in sight.
    const bool allCame
        = QTest::qWaitFor([&] { return !platform.files->isBusy() && !platform.icons->isBusy(); },
                          2 * Patience.count());
    return allCame ? atRest() : QImage();
}

/// Answers what the panel asks of the calendars and the player.
void PanelForPicture::tell(const Day& day)
{
    using enum quib::CalendarAuthorization;
    auto& calendar = m_shell.calendar;
    calendar.authorizations.front()(day.events ? FullAccess : NotDetermined);
    if (day.events) {
        calendar.readings.back().answer(*day.events);
    }
    if (!day.playing.isEmpty()) {
        m_shell.player.running = {quib::Player::Spotify};
        m_delegate->viewContext().media.refresh();
        m_shell.player.answer(day.playing);
    }
}

/// Layouts take a few rounds.
QImage PanelForPicture::atRest()
{
    QImage before;
    auto picture = m_panel->picture();
    const bool rests = QTest::qWaitFor([&] {
        before = picture;
        picture = m_panel->picture();
        return picture == before;
    });
    return rests ? picture : QImage();
}
