#pragma once

#include "platform/platform.h"
#include "support/fakecalendarstore.h"
#include "support/fakeplayerlink.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <utility>
#include <vector>

/// One screen with a bar of 30 points at its top, unless a test says otherwise.
class FakeScreenSource final : public quib::ScreenSource {
public:
    QList<quib::Screen> list{
        {.frame = {0, 0, 1920, 1080}, .visibleFrame = {0, 30, 1920, 1050}, .isMain = true}};

    QList<quib::Screen> screens() const override { return list; }
};

/// Tells of nothing by itself, unless a test says otherwise.
class FakePointerSource final : public quib::PointerSource {
public:
    quib::PointerState now;
    bool polled = false;
    bool announces = false;
    bool announced = false; ///< The next move will be.
    mutable int asked = 0; ///< How often for its state.

    quib::PointerState state() const override
    {
        ++asked;
        return now;
    }
    bool needsPolling() const override { return polled; }
    bool announceNextChange() override
    {
        announced = announces;
        return announces;
    }

    void become(const quib::PointerState& state)
    {
        if (std::exchange(now, state) != state && std::exchange(announced, false)) {
            Q_EMIT changed();
        }
    }
    void move(QPointF position) { become({.position = position, .leftHeld = now.leftHeld}); }
};

/// Writes what was asked of it, in order, into the test's list.
class FakePanelHost final : public quib::PanelHost {
public:
    explicit FakePanelHost(QStringList& asked)
        : m_asked(asked)
    {
    }

    QPainterPath shape;
    QRect hoverRect;

    void adopt(QWindow& /*window*/) override { m_asked << QStringLiteral("adopt"); }
    void place(const QRectF& frame) override
    {
        m_asked << QStringLiteral("place at %1,%2").arg(frame.x()).arg(frame.y());
    }
    void setInputRegion(const QRegion& region) override
    {
        m_asked << (region.isEmpty() ? QStringLiteral("let clicks through")
                                     : QStringLiteral("take clicks"));
    }
    void setHoverRect(const QRect& rect) override { hoverRect = rect; }
    void setVisibleShape(const QPainterPath& visible) override { shape = visible; }
    void orderFront() override { m_asked << QStringLiteral("order front"); }
    bool takeKeyboard() override
    {
        m_asked << QStringLiteral("take keyboard");
        return true;
    }
    void giveBackKeyboard(std::optional<quint32> click) override
    {
        m_asked << QStringLiteral("give back keyboard %1").arg(click.value_or(0));
    }

private:
    QStringList& m_asked;
};

class FakeSingleInstance final : public quib::SingleInstance {
public:
    bool claim(const std::filesystem::path& /*dataFolder*/) override { return true; }
};

class FakeSessionLock final : public quib::SessionLock {
public:
    bool isLocked() const override { return m_isLocked; }
    void setLocked(bool isLocked)
    {
        m_isLocked = isLocked;
        Q_EMIT isLockedChanged();
    }

private:
    bool m_isLocked = false;
};

class FakeDesktop final : public quib::Desktop {
public:
    bool reduced = false;
    int beeps = 0;

    bool isMotionReduced() const override { return reduced; }
    QString fontFamily() const override { return QStringLiteral("Inter"); }
    void beep() override { ++beeps; }
};

/// Nothing is installed, unless a test says otherwise.
class FakeAppCatalog final : public quib::AppCatalog {
public:
    QHash<QString, QString> paths; ///< Of names.
    QList<quib::Application> list;

    std::optional<QString> applicationNamed(const QString& name) const override
    {
        return paths.contains(name) ? std::optional(paths.value(name)) : std::nullopt;
    }
    QString nameOf(const QString& path) const override { return path; }
    QList<quib::Application> applications() const override { return list; }
};

/// Writes down what it was asked to open.
class FakeOpener final : public quib::Opener {
public:
    QStringList asked;
    std::vector<std::filesystem::path> paths; ///< As they stand, also where they are no text.

    void openPath(const std::filesystem::path& path) override
    {
        asked << QStringLiteral("open ") + QString::fromStdString(path.native());
        paths.push_back(path);
    }
    void openAddress(const QUrl& address) override
    {
        asked << QStringLiteral("browse ") + QString::fromLatin1(address.toEncoded());
    }
    void openWithFirst(const QString& path, const QStringList& candidates) override
    {
        asked << QStringLiteral("open %1 with first of %2")
                     .arg(path, candidates.join(QLatin1Char('|')));
    }
    void openInTextEditor(const std::filesystem::path& path) override
    {
        asked << QStringLiteral("edit ") + QString::fromStdString(path.native());
        paths.push_back(path);
    }
    void reveal(const QString& path) override { asked << QStringLiteral("reveal ") + path; }
};

/// Leaves every question open until the test answers it.
class FakeIconSource final : public quib::IconSource {
public:
    struct Question {
        QString path;
        int pixels = 0;
        Answer answer;
    };

    QList<Question> open;

    void find(const QString& path, int pixels, Answer answer) override
    {
        open.append({path, pixels, std::move(answer)});
    }
    bool isBusy() const override { return !open.isEmpty(); }

    /// With a square of that colour.
    void answerAll(const QColor& color)
    {
        for (const auto& question : std::exchange(open, {})) {
            QImage picture(question.pixels, question.pixels, QImage::Format_ARGB32_Premultiplied);
            picture.fill(color);
            question.answer(picture);
        }
        Q_EMIT settled();
    }
};

/// Everything is there, unless a test says otherwise. It may hold the answers back.
class FakeFileProbe final : public quib::FileProbe {
public:
    QSet<QString> gone;
    QSet<QString> unknown;
    QStringList asked;
    bool holdsBack = false;

    void ask(const QString& path, Answer answer) override
    {
        asked << path;
        m_due.append({path, std::move(answer)});
        if (!holdsBack) {
            QMetaObject::invokeMethod(this, &FakeFileProbe::answerAll, Qt::QueuedConnection);
        }
    }
    bool isBusy() const override { return !m_due.isEmpty(); }

    void answerAll()
    {
        for (const auto& [path, answer] : std::exchange(m_due, {})) {
            answer(gone.contains(path)          ? quib::FilePresence::Gone
                       : unknown.contains(path) ? quib::FilePresence::Unknown
                                                : quib::FilePresence::There);
        }
    }

private:
    QList<std::pair<QString, Answer>> m_due;
};

class FakeStatusItem final : public quib::StatusItem {
public:
    explicit FakeStatusItem(QStringList& asked)
        : m_asked(asked)
    {
    }

    quib::StatusIcon icon;
    QList<quib::MenuItem> menu;
    bool shown = true;

    void install(const quib::StatusIcon& installed) override
    {
        m_asked << QStringLiteral("install status item");
        icon = installed;
    }
    void setMenu(const QList<quib::MenuItem>& items) override { menu = items; }
    bool isShown() const override { return shown; }

private:
    QStringList& m_asked;
};

class FakeLoginItem final : public quib::LoginItem {
public:
    bool enabled = false;
    bool fails = false;

    bool isEnabled() const override { return enabled; }
    bool enable() override { return change(true); }
    bool disable() override { return change(false); }

private:
    bool change(bool wanted)
    {
        enabled = fails ? enabled : wanted;
        return !fails;
    }
};

/// Leaves every choice open until the test answers it.
class FakeFilePicker final : public quib::FilePicker {
public:
    QStringList asked;
    QList<Answer> open;

    void chooseFolder(const std::optional<QUrl>& startIn, Answer answer) override
    {
        asked << QStringLiteral("folder in %1").arg(startIn.value_or(QUrl()).toLocalFile());
        open << std::move(answer);
    }
    void chooseApplication(Answer answer) override
    {
        asked << QStringLiteral("application");
        open << std::move(answer);
    }
};

/// A desktop of fakes, and ways to reach them once the delegate owns them.
struct FakeShell {
    QStringList asked; ///< Of the panel's host, in order.
    int trimmed = 0; ///< How often memory was given back.
    quib::Platform platform{.screens = std::make_unique<FakeScreenSource>(),
                            .pointer = std::make_unique<FakePointerSource>(),
                            .panelHost = std::make_unique<FakePanelHost>(asked),
                            .instance = std::make_unique<FakeSingleInstance>(),
                            .sessionLock = std::make_unique<FakeSessionLock>(),
                            .desktop = std::make_unique<FakeDesktop>(),
                            .applications = std::make_unique<FakeAppCatalog>(),
                            .opener = std::make_unique<FakeOpener>(),
                            .player = std::make_unique<FakePlayerLink>(),
                            .calendar = std::make_unique<FakeCalendarStore>(),
                            .icons = std::make_unique<FakeIconSource>(),
                            .files = std::make_unique<FakeFileProbe>(),
                            .statusItem = std::make_unique<FakeStatusItem>(asked),
                            .loginItem = std::make_unique<FakeLoginItem>(),
                            .filePicker = std::make_unique<FakeFilePicker>(),
                            .trimMemory = [this] { ++trimmed; }};
    FakeScreenSource& screens = static_cast<FakeScreenSource&>(*platform.screens);
    FakePointerSource& pointer = static_cast<FakePointerSource&>(*platform.pointer);
    FakePanelHost& host = static_cast<FakePanelHost&>(*platform.panelHost);
    FakeSingleInstance& instance = static_cast<FakeSingleInstance&>(*platform.instance);
    FakeSessionLock& sessionLock = static_cast<FakeSessionLock&>(*platform.sessionLock);
    FakeDesktop& desktop = static_cast<FakeDesktop&>(*platform.desktop);
    FakeAppCatalog& applications = static_cast<FakeAppCatalog&>(*platform.applications);
    FakeOpener& opener = static_cast<FakeOpener&>(*platform.opener);
    FakePlayerLink& player = static_cast<FakePlayerLink&>(*platform.player);
    FakeCalendarStore& calendar = static_cast<FakeCalendarStore&>(*platform.calendar);
    FakeIconSource& icons = static_cast<FakeIconSource&>(*platform.icons);
    FakeFileProbe& files = static_cast<FakeFileProbe&>(*platform.files);
    FakeStatusItem& statusItem = static_cast<FakeStatusItem&>(*platform.statusItem);
    FakeLoginItem& loginItem = static_cast<FakeLoginItem&>(*platform.loginItem);
    FakeFilePicker& filePicker = static_cast<FakeFilePicker&>(*platform.filePicker);
};
