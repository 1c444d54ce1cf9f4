#include "desktop/desk/desk.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int TimeTab = 4;
constexpr QPoint Headline{734, 60}; ///< Of the totals, on the time tab.

bool hasWhite(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y).lightness() > 200) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

/// Locales that name no country, and so no currency, and names that mean nothing.
class LocaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void oddLocale_moneyIsShown_data();
    void oddLocale_moneyIsShown();
};

void LocaleTest::oddLocale_moneyIsShown_data()
{
    QTest::addColumn<QString>("locale");

    for (const auto* name :
         {"C", "POSIX", "eo", "de", "xx_YY", "ar", "@currency=", "de_DE@x=y;z"}) {
        QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
}

void LocaleTest::oddLocale_moneyIsShown()
{
    QFETCH(const QString, locale);
    Desk desk;
    desk.setVariable(u"LC_ALL"_s, locale);
    const auto quib = desk.startQuib();

    desk.openWithPointer();
    desk.showTab(TimeTab);

    QTRY_VERIFY(hasWhite(desk.picture().copy({Headline, QSize(120, 30)})));
    QCOMPARE(quib->state(), QProcess::Running);
}

QTEST_GUILESS_MAIN(LocaleTest)
#include "tst_locale.moc"
