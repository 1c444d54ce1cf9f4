#pragma once

#include "support/panel/delegatefortest.h"

#include <QTest>

/// A delegate among fakes over which the pointer goes. A path of it is a text, one letter for each
/// tick of 16 ms: n on the notch, c in the card, o outside both; a capital when the left button is
/// held; an x is a left click where the pointer stands.
struct HoverPath {
    DelegateForTest quib;

    /// For each test three rows: looked at by hand, polled alone, and polled by a desktop that
    /// tells when the rest ends.
    static void addWays()
    {
        QTest::addColumn<bool>("polled");
        QTest::addColumn<bool>("announces");

        QTest::addRow("by hand") << false << false;
        QTest::addRow("polled") << true << false;
        QTest::addRow("polled and woken") << true << true;
    }

    static QPointF pointOf(QChar place)
    {
        if (place == u'n') {
            return {960, 2};
        }
        return {960, place == u'c' ? 200.0 : 700.0};
    }

    /// In the way of the test's row, outside.
    HoverPath()
    {
        QFETCH_GLOBAL(const bool, polled);
        QFETCH_GLOBAL(const bool, announces);
        quib.shell.pointer.polled = polled;
        quib.shell.pointer.announces = announces;
        quib.shell.pointer.now.position = pointOf(u'o');
        if (polled) {
            quib.launched();
            quib.hands.advance(std::chrono::seconds(3));
            QCOMPARE(quib.shell.pointer.announced, announces);
        }
    }

    void move(const QString& path)
    {
        QFETCH_GLOBAL(const bool, polled);
        auto& pointer = quib.shell.pointer;
        for (const auto letter : path) {
            if (letter == u'x') {
                Q_EMIT pointer.clicked(4711);
                continue;
            }
            const ::quib::PointerState next{.position = pointOf(letter.toLower()),
                                            .leftHeld = letter.isUpper()};
            if (polled) {
                pointer.become(next);
                quib.hands.advance(Tick);
                continue;
            }
            quib.hands.advance(Tick);
            pointer.now = next;
            quib.delegate.life().checkHover();
        }
    }

private:
    static constexpr std::chrono::milliseconds Tick{16};
};
