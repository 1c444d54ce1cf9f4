#include "pictures/likeness.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

class LikenessTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void change_isSeen_data();
    void change_isSeen();
    void rounding_isNotSeen();
    void otherSize_isSeen();
};

namespace {

/// A word on a card, or what became of it.
QImage card(const QString& word, QPoint at, QColor color)
{
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.fillRect(10, 5, 180, 50, QColor(14, 14, 14));
    QFont font(u"Inter"_s);
    font.setPixelSize(11);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(at, word);
    return image;
}

const QColor Usual(168, 164, 184);

QImage usual()
{
    return card(u"Corner Café"_s, {20, 30}, Usual);
}

} // namespace

void LikenessTest::change_isSeen_data()
{
    QTest::addColumn<QImage>("changed");

    QTest::addRow("a point to the right") << card(u"Corner Café"_s, {21, 30}, Usual);
    QTest::addRow("a point lower") << card(u"Corner Café"_s, {20, 31}, Usual);
    QTest::addRow("a letter less") << card(u"Corner Caf"_s, {20, 30}, Usual);
    QTest::addRow("an accent less") << card(u"Corner Cafe"_s, {20, 30}, Usual);
    QTest::addRow("three in a hundred darker")
        << card(u"Corner Café"_s, {20, 30}, QColor(160, 156, 176));
}

void LikenessTest::change_isSeen()
{
    QFETCH(QImage, changed);

    QVERIFY(compare(usual(), simplified(usual())).isAlike());
    QVERIFY(!compare(changed, simplified(usual())).isAlike());
}

void LikenessTest::rounding_isNotSeen()
{
    auto rounded = usual();
    for (int x = 0; x < rounded.width(); ++x) {
        for (int y = 0; y < rounded.height(); ++y) {
            const QColor color(rounded.pixel(x, y));
            rounded.setPixelColor(
                x, y,
                {std::max(0, color.red() - 1), std::min(255, color.green() + 1), color.blue()});
        }
    }

    const auto likeness = compare(rounded, simplified(usual()));

    QCOMPARE(likeness.strayPixels, 0);
    QVERIFY(likeness.isAlike());
}

void LikenessTest::otherSize_isSeen()
{
    QVERIFY(!compare(usual().copy(0, 0, 199, 60), usual()).isAlike());
    QVERIFY(!compare(usual(), QImage()).isAlike());
}

QTEST_MAIN(LikenessTest)
#include "tst_likeness.moc"
