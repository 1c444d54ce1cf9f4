#include "model/locale/userlocale.h"

#include "model/locale/money.h"
#include "support/travel.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using quib::UserLocale;

namespace {

constexpr std::array Variables{"LC_ALL",  "LC_MONETARY", "LC_NUMERIC",
                               "LC_TIME", "LANG",        "LANGUAGE"};

/// "LANG=en_GB LC_TIME=de_DE" as the only such variables, put back when this ends.
class Environment {
public:
    explicit Environment(const QByteArray& assignments)
    {
        for (std::size_t row = 0; row < Variables.size(); ++row) {
            m_before[row] = qgetenv(Variables[row]);
            qunsetenv(Variables[row]);
        }
        for (const auto& assignment : assignments.split(' ')) {
            const auto equals = assignment.indexOf('=');
            qputenv(assignment.first(std::max<qsizetype>(equals, 0)).constData(),
                    assignment.mid(equals + 1));
        }
    }
    ~Environment()
    {
        for (std::size_t row = 0; row < Variables.size(); ++row) {
            qputenv(Variables[row], m_before[row]);
        }
    }
    Q_DISABLE_COPY_MOVE(Environment)

private:
    std::array<QByteArray, Variables.size()> m_before;
};

} // namespace

class UserLocaleTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromEnvironment_data();
    void fromEnvironment();
    void fromEnvironment_numbersMayBeOfAnotherCountry();
    void fromEnvironment_scriptCounts_data();
    void fromEnvironment_scriptCounts();
    void fromEnvironment_script_keepsTheCurrency();
    void zone_isTheSystemsWhenAsked();
    void zone_mayBeGiven();
};

void UserLocaleTest::fromEnvironment_data()
{
    QTest::addColumn<QByteArray>("assignments");
    QTest::addColumn<QByteArray>("money");
    QTest::addColumn<QByteArray>("dates");

    QTest::addRow("a language for all") << "LANG=en_GB.UTF-8"_ba
                                        << "en_GB"_ba
                                        << "en_GB"_ba;
    QTest::addRow("money of another country") << "LANG=en_GB LC_MONETARY=de_DE.UTF-8@euro"_ba
                                              << "de_DE"_ba
                                              << "en_GB"_ba;
    QTest::addRow("dates of another country") << "LANG=en_GB LC_TIME=th_TH"_ba
                                              << "en_GB"_ba
                                              << "th_TH"_ba;
    QTest::addRow("one over all") << "LC_ALL=fr_FR LC_TIME=th_TH LC_MONETARY=de_DE LANG=en_GB"_ba
                                  << "fr_FR"_ba
                                  << "fr_FR"_ba;
    QTest::addRow("an empty one over all") << "LC_ALL= LC_TIME= LANG=en_GB"_ba
                                           << "en_GB"_ba
                                           << "en_GB"_ba;
    QTest::addRow("C over all") << "LC_ALL=C.UTF-8 LANG=de_DE"_ba
                                << "en"_ba
                                << "en"_ba;
    QTest::addRow("POSIX") << "LANG=POSIX"_ba
                           << "en"_ba
                           << "en"_ba;
    QTest::addRow("nothing chosen") << "LANG="_ba
                                    << "en"_ba
                                    << "en"_ba;
    QTest::addRow("an encoding alone") << "LANG=.UTF-8"_ba
                                       << "en"_ba
                                       << "en"_ba;
    QTest::addRow("languages of messages do not count") << "LANGUAGE=fr:en LANG=en_GB"_ba
                                                        << "en_GB"_ba
                                                        << "en_GB"_ba;
}

void UserLocaleTest::fromEnvironment()
{
    QFETCH(QByteArray, assignments);
    QFETCH(QByteArray, money);
    QFETCH(QByteArray, dates);
    const Environment environment(assignments);

    const auto locale = UserLocale::fromEnvironment();

    QCOMPARE(locale.money, money);
    QCOMPARE(locale.dates, dates);
}

void UserLocaleTest::fromEnvironment_numbersMayBeOfAnotherCountry()
{
    const Environment environment("LANG=en_GB LC_NUMERIC=de_DE.UTF-8"_ba);

    const auto locale = UserLocale::fromEnvironment();

    QCOMPARE(locale.numbers, "de_DE"_ba);
    QCOMPARE(locale.money, "en_GB"_ba);
}

void UserLocaleTest::fromEnvironment_scriptCounts_data()
{
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<QByteArray>("name");

    QTest::addRow("Serbian in Latin") << "sr_RS.UTF-8@latin"_ba
                                      << "sr_Latn_RS"_ba;
    QTest::addRow("without an encoding") << "sr_RS@latin"_ba
                                         << "sr_Latn_RS"_ba;
    QTest::addRow("without a country") << "sr@latin"_ba
                                       << "sr_Latn"_ba;
    QTest::addRow("Uzbek in Cyrillic") << "uz_UZ@cyrillic"_ba
                                       << "uz_Cyrl_UZ"_ba;
    QTest::addRow("Sindhi in Devanagari") << "sd_IN@devanagari"_ba
                                          << "sd_Deva_IN"_ba;
    QTest::addRow("one in which it is not written") << "de_DE@cyrillic"_ba
                                                    << "de_DE"_ba;
    QTest::addRow("no script") << "ca_ES.UTF-8@valencia"_ba
                               << "ca_ES"_ba;
    QTest::addRow("a currency") << "de_DE@euro"_ba
                                << "de_DE"_ba;
    QTest::addRow("nothing") << "de_DE@"_ba
                             << "de_DE"_ba;
    QTest::addRow("no language") << "C.UTF-8@latin"_ba
                                 << "en"_ba;
}

void UserLocaleTest::fromEnvironment_scriptCounts()
{
    QFETCH(QByteArray, language);
    QFETCH(QByteArray, name);
    const Environment environment("LANG=" + language);

    const auto locale = UserLocale::fromEnvironment();

    QCOMPARE(locale.dates, name);
    QCOMPARE(locale.numbers, name);
    QCOMPARE(locale.money, name);
}

void UserLocaleTest::fromEnvironment_script_keepsTheCurrency()
{
    const Environment environment("LANG=sr_RS.UTF-8@latin"_ba);

    QCOMPARE(quib::formatMoney(1234, UserLocale::fromEnvironment()), u"1.234\u00A0RSD"_s);
}

void UserLocaleTest::zone_isTheSystemsWhenAsked()
{
    const Travel travel("Europe/Paris");
    const auto locale = UserLocale::fromEnvironment();
    QCOMPARE(locale.zone().id(), "Europe/Paris"_ba);

    Travel::to("Asia/Tokyo");

    QCOMPARE(locale.zone().id(), "Asia/Tokyo"_ba);
}

void UserLocaleTest::zone_mayBeGiven()
{
    const Travel travel("Asia/Tokyo");

    QCOMPARE(UserLocale({.timeZone = QTimeZone("Europe/Paris")}).zone().id(), "Europe/Paris"_ba);
}

QTEST_GUILESS_MAIN(UserLocaleTest)
#include "tst_userlocale.moc"
