#include "platform/linux/icons/iconhome.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Pictures, entries and themes that mean harm.
class HostileIconsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hostilePicture_isTheStandIn_data();
    void hostilePicture_isTheStandIn();
    void hostileEntry_isTheStandIn_data();
    void hostileEntry_isTheStandIn();
    void hostileTheme_staysInItsFolder_data();
    void hostileTheme_staysInItsFolder();
    void hostileTheme_hugeNumbers_areAsGoodAsAny();
};

void HostileIconsTest::hostilePicture_isTheStandIn_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg"
        xmlns:xlink="http://www.w3.org/1999/xlink" width="9" height="9">)";
    const QByteArray rect = R"(<rect width="9" height="9" fill="red"/>)";
    QByteArray lots = svg + R"(<g id="a0">)" + rect + "</g>";
    for (int level = 1; level < 40; ++level) {
        const auto use = "<use xlink:href=\"#a" + QByteArray::number(level - 1) + "\"/>";
        lots += "<g id=\"a" + QByteArray::number(level) + "\">" + use + use + "</g>";
    }
    const auto nested = [inner = (svg + rect + "</svg>").toBase64()](const QByteArray& kind) {
        return R"(<image width="9" height="9" xlink:href="data:)" + kind + ";base64," + inner
            + R"("/>)";
    };
    QByteArray huge = QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000fffff000fffff08060000"
                                          "00");

    QTest::addRow("nothing") << QByteArray();
    QTest::addRow("words") << QByteArray("no picture");
    QTest::addRow("a picture of a million by a million") << huge;
    QTest::addRow("a drawing that doubles forty times") << lots + "</svg>";
    QTest::addRow("a drawing that uses itself")
        << svg + R"(<g id="a">)" + rect + R"(<use xlink:href="#a"/></g></svg>)";
    QTest::addRow("a drawing of a hundred thousand groups in each other") << svg
            + QByteArray("<g>").repeated(100'000) + rect + QByteArray("</g>").repeated(100'000)
            + "</svg>";
    QTest::addRow("a drawing that reads another file")
        << svg + R"(<image width="9" height="9" xlink:href="/dev/zero"/></svg>)";
    QTest::addRow("a drawing that reads another file by either name of the address")
        << svg + R"(<image width="9" height="9" href="data:image/png;base64,iVBORw0K"
            xlink:href="/dev/zero"/></svg>)";
    QTest::addRow("a drawing with an endless style sheet")
        << R"(<?xml-stylesheet type="text/css" href="/dev/zero"?>)" + svg + rect + "</svg>";
    QTest::addRow("a drawing with a style sheet that nobody writes")
        << R"(<?xml-stylesheet type="text/css" href="FIFO"?>)" + svg + rect + "</svg>";
    QTest::addRow("a drawing in a drawing") << svg + nested("image/svg+xml") + "</svg>";
    QTest::addRow("a drawing in a drawing that calls itself a picture")
        << svg + nested("image/png") + "</svg>";
    QTest::addRow("entities in entities")
        << "<!DOCTYPE svg [<!ENTITY a \"xxxxxxxxxx\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
           "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
            + svg + "<text>&d;&d;&d;&d;&d;&d;&d;&d;</text></svg>";
    QTest::addRow("a drawing that does not end") << svg + rect;
    QTest::addRow("packed") << QByteArray("\x1f\x8b\x08") + QByteArray(1000, 'x');
    QTest::addRow("five megabytes") << QByteArray(qsizetype(5) << 20, ' ');
}

void HostileIconsTest::hostilePicture_isTheStandIn()
{
    QFETCH(QByteArray, bytes);
    IconHome home;
    const auto fifo = QFile::encodeName(home.path(u"fifo"_s));
    QCOMPARE(mkfifo(fifo.constData(), 0600), 0);
    const auto file = home.put(u"hostile.svg"_s, bytes.replace("FIFO", fifo));

    QCOMPARE(home.ask(home.entry(file)), quib::standIn(32));
}

void HostileIconsTest::hostileEntry_isTheStandIn_data()
{
    QTest::addColumn<QString>("icon");

    QTest::addRow("none") << u""_s;
    QTest::addRow("not there") << u"/missing.png"_s;
    QTest::addRow("not in any theme") << u"nowhere-to-be-found"_s;
    QTest::addRow("a device") << u"/dev/zero"_s;
    QTest::addRow("a folder") << u"/usr"_s;
    QTest::addRow("a fifo") << u"FIFO"_s;
    QTest::addRow("a way out of the theme") << u"../../../../hidden"_s;
    QTest::addRow("of a million letters") << QString(1'000'000, u'x');
}

void HostileIconsTest::hostileEntry_isTheStandIn()
{
    QFETCH(QString, icon);
    IconHome home;
    home.picture(u"hidden.png"_s, Qt::red);
    const auto fifo = home.path(u"fifo"_s);
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);

    QCOMPARE(home.ask(home.entry(icon == u"FIFO"_s ? fifo : icon)), quib::standIn(32));
}

void HostileIconsTest::hostileTheme_staysInItsFolder_data()
{
    QTest::addColumn<QByteArray>("index");

    QTest::addRow("by a folder") << QByteArray(
        "[Icon Theme]\nName=x\nDirectories=../../../hidden\n[../../../hidden]\nSize=32\n");
    QTest::addRow("by a parent") << QByteArray("[Icon Theme]\nName=x\nInherits=../../hidden\n");
}

void HostileIconsTest::hostileTheme_staysInItsFolder()
{
    QFETCH(QByteArray, index);
    IconHome home;
    home.theme(u"Ours"_s, index);
    home.put(u"hidden/index.theme"_s, "[Icon Theme]\nName=x\nDirectories=.\n[.]\nSize=32\n");
    home.picture(u"hidden/a.png"_s, Qt::red);

    QCOMPARE(home.ask(home.entry(u"a"_s)), quib::standIn(32));
}

void HostileIconsTest::hostileTheme_hugeNumbers_areAsGoodAsAny()
{
    IconHome home;
    home.theme(u"Ours"_s,
               "[Icon Theme]\nName=x\nDirectories=32\n[32]\nSize=2147483647\n"
               "Scale=2147483647\nThreshold=-2147483648\n");
    home.picture(u"data/icons/Ours/32/a.png"_s, Qt::green);

    QCOMPARE(middleOf(home.ask(home.entry(u"a"_s))), QColor(Qt::green));
}

QTEST_GUILESS_MAIN(HostileIconsTest)
#include "tst_hostileicons.moc"
