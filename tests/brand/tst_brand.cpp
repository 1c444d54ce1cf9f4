#include "brand/brand.h"

#include <QTest>

#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;
using quib::Brand;

class BrandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opaqueColours_areByteValues_data();
    void opaqueColours_areByteValues();
    void surfaces_areTranslucentWhite();
    void purple_isTheFractionOfItsBytes();
    void color_ofAStatus_data();
    void color_ofAStatus();
    void color_ofNoStatus_isTheDarkerGrey_data();
    void color_ofNoStatus_isTheDarkerGrey();
    void white_takesItsOpacity();
    void named_meansThatColour_data();
    void named_meansThatColour();
};

namespace {

/// Colours keep 16 bits for each part.
bool isNear(float part, double wanted)
{
    return std::abs(part - wanted) < 1.0 / 65535;
}

} // namespace

void BrandTest::opaqueColours_areByteValues_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("hex");

    QTest::addRow("purple") << Brand::purple() << u"#8b5cf6"_s;
    QTest::addRow("glow") << Brand::glow() << u"#a78bfa"_s;
    QTest::addRow("deep") << Brand::deep() << u"#5b21b6"_s;
    QTest::addRow("live") << Brand::live() << u"#10b981"_s;
    QTest::addRow("muted") << Brand::muted() << u"#a8a4b8"_s;
    QTest::addRow("muted2") << Brand::muted2() << u"#7a7588"_s;
    QTest::addRow("gold") << Brand::gold() << u"#f5c542"_s;
    QTest::addRow("red") << Brand::red() << u"#ff453a"_s;
}

void BrandTest::opaqueColours_areByteValues()
{
    QFETCH(QColor, color);
    QFETCH(QString, hex);

    QCOMPARE(color.name(), hex);
    QCOMPARE(color.alphaF(), 1.0F);
}

void BrandTest::surfaces_areTranslucentWhite()
{
    QCOMPARE(Brand::card().name(), u"#ffffff"_s);
    QVERIFY(isNear(Brand::card().alphaF(), 0.055));
    QCOMPARE(Brand::cardStroke().name(), u"#ffffff"_s);
    QVERIFY(isNear(Brand::cardStroke().alphaF(), 0.07));
}

void BrandTest::purple_isTheFractionOfItsBytes()
{
    QVERIFY(isNear(Brand::purple().redF(), 0.5450980392156862));
    QVERIFY(isNear(Brand::purple().greenF(), 0.3607843137254902));
    QVERIFY(isNear(Brand::purple().blueF(), 0.9647058823529412));
}

void BrandTest::color_ofAStatus_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QList<double>>("parts");

    QTest::addRow("amber") << u"lead"_s << QList<double>{0.98, 0.75, 0.30};
    QTest::addRow("pink") << u"design"_s << QList<double>{0.95, 0.45, 0.75};
    QTest::addRow("purple") << u"build"_s << QList<double>{139 / 255.0, 92 / 255.0, 246 / 255.0};
    QTest::addRow("blue") << u"review"_s << QList<double>{0.35, 0.65, 1.0};
    QTest::addRow("green") << u"live"_s << QList<double>{16 / 255.0, 185 / 255.0, 129 / 255.0};
    QTest::addRow("grey") << u"care"_s << QList<double>{168 / 255.0, 164 / 255.0, 184 / 255.0};
}

void BrandTest::color_ofAStatus()
{
    QFETCH(QString, status);
    QFETCH(QList<double>, parts);

    const auto color = Brand::color(status);

    QVERIFY(isNear(color.redF(), parts[0]));
    QVERIFY(isNear(color.greenF(), parts[1]));
    QVERIFY(isNear(color.blueF(), parts[2]));
    QCOMPARE(color.alphaF(), 1.0F);
}

void BrandTest::color_ofNoStatus_isTheDarkerGrey_data()
{
    QTest::addColumn<QString>("status");

    QTest::addRow("empty") << QString();
    QTest::addRow("another word") << u"gone"_s;
    QTest::addRow("capitals") << u"Build"_s;
}

void BrandTest::color_ofNoStatus_isTheDarkerGrey()
{
    QFETCH(QString, status);

    QCOMPARE(Brand::color(status), Brand::muted2());
}

void BrandTest::white_takesItsOpacity()
{
    QCOMPARE(Brand::white(0.12).name(), u"#ffffff"_s);
    QVERIFY(isNear(Brand::white(0.12).alphaF(), 0.12));
}

void BrandTest::named_meansThatColour_data()
{
    QTest::addColumn<std::optional<QString>>("word");
    QTest::addColumn<QColor>("wanted");

    const QColor green(0x22, 0xC5, 0x5E);
    QTest::addRow("no word") << std::optional<QString>() << Brand::glow();
    const auto add = [](const char* word, const QColor& wanted) {
        QTest::addRow("'%s'", word) << std::optional(QString::fromUtf8(word)) << wanted;
    };
    add("", Brand::glow());
    add("purple", Brand::glow());
    add("PURPLE", Brand::glow());
    add("gold", Brand::gold());
    add("Gold", Brand::gold());
    add("#gold", Brand::glow());
    add("#22c55e", green);
    add("22c55e", green);
    add("#22C55E", green);
    add("##22C55E##", green);
    add("22c55e#", green);
    add("#22c55", Brand::glow());
    add("#22c55e80", Brand::glow());
    add("22#c55e", Brand::glow());
    add("22#55e", Brand::glow());
    add(" 22c55e", Brand::glow());
    add("22c55 ", Brand::glow());
    add("0x22c5", Brand::glow());
    add("+22c55", Brand::glow());
    add("-22c55", Brand::glow());
    add("22c55g", Brand::glow());
    add("abc", Brand::glow());
    add("red", Brand::glow());
    add("######", Brand::glow());
    add("000000", QColor(0, 0, 0));
    add("ffffff", QColor(255, 255, 255));
    add("\xEF\xBC\x91\xEF\xBC\x91\xEF\xBC\x91\xEF\xBC\x91\xEF\xBC\x91\xEF\xBC\x91", Brand::glow());
}

void BrandTest::named_meansThatColour()
{
    QFETCH(std::optional<QString>, word);
    QFETCH(QColor, wanted);

    const auto color = Brand::named(word);

    QCOMPARE(color.name(), wanted.name());
    QCOMPARE(color.alphaF(), 1.0F);
}

QTEST_GUILESS_MAIN(BrandTest)
#include "tst_brand.moc"
