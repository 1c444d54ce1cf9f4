#pragma once

#include "platform/platform.h"

#include <QStringList>

/// One screen with a bar of 30 points at its top, unless a test says otherwise.
class FakeScreenSource final : public quib::ScreenSource {
public:
    QList<quib::Screen> list{
        {.frame = {0, 0, 1920, 1080}, .visibleFrame = {0, 30, 1920, 1050}, .isMain = true}};

    QList<quib::Screen> screens() const override { return list; }
};

class FakePointerSource final : public quib::PointerSource {
public:
    quib::PointerState now;

    quib::PointerState state() const override { return now; }
    bool needsPolling() const override { return false; }
};

/// Writes what was asked of it, in order, into the test's list.
class FakePanelHost final : public quib::PanelHost {
public:
    explicit FakePanelHost(QStringList& asked)
        : m_asked(asked)
    {
    }

    QPainterPath shape;

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
    void setVisibleShape(const QPainterPath& visible) override { shape = visible; }
    void orderFront() override { m_asked << QStringLiteral("order front"); }
    void takeKeyboard() override { m_asked << QStringLiteral("take keyboard"); }
    void giveBackKeyboard(std::optional<quint32> click) override
    {
        m_asked << QStringLiteral("give back keyboard %1").arg(click.value_or(0));
    }

private:
    QStringList& m_asked;
};

class FakeSingleInstance final : public quib::SingleInstance {
public:
    bool claim(const QString& /*dataFolder*/) override { return true; }
};

class FakeDesktop final : public quib::Desktop {
public:
    bool reduced = false;

    bool isMotionReduced() const override { return reduced; }
    QString fontFamily() const override { return QStringLiteral("Inter"); }
};

/// Nothing is installed, unless a test says otherwise.
class FakeAppCatalog final : public quib::AppCatalog {
public:
    QHash<QString, QString> paths;

    std::optional<QString> applicationNamed(const QString& name) const override
    {
        return paths.contains(name) ? std::optional(paths.value(name)) : std::nullopt;
    }
};

/// A desktop of fakes, and ways to reach them once the delegate owns them.
struct FakeShell {
    QStringList asked; ///< Of the panel's host, in order.
    quib::Platform platform{.screens = std::make_unique<FakeScreenSource>(),
                            .pointer = std::make_unique<FakePointerSource>(),
                            .panelHost = std::make_unique<FakePanelHost>(asked),
                            .instance = std::make_unique<FakeSingleInstance>(),
                            .desktop = std::make_unique<FakeDesktop>(),
                            .applications = std::make_unique<FakeAppCatalog>()};
    FakeScreenSource& screens = static_cast<FakeScreenSource&>(*platform.screens);
    FakePointerSource& pointer = static_cast<FakePointerSource&>(*platform.pointer);
    FakePanelHost& host = static_cast<FakePanelHost&>(*platform.panelHost);
    FakeSingleInstance& instance = static_cast<FakeSingleInstance&>(*platform.instance);
    FakeDesktop& desktop = static_cast<FakeDesktop&>(*platform.desktop);
};
