#include "platform/linux/icons/iconhome.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// "[size folder]\nSize=…", for each.
QByteArray indexOf(const QList<int>& sizes)
{
    QByteArrayList names;
    QByteArray folders;
    for (const int size : sizes) {
        names << QByteArray::number(size);
        folders += "[" + names.back() + "]\nType=Fixed\nSize=" + names.back() + "\n";
    }
    return "[Icon Theme]\nName=x\nDirectories=" + names.join(',') + "\n" + folders;
}

} // namespace

/// Which icon the user expects, in the size that is asked for.
class ThemeIconSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void application_hasItsIcon_data();
    void application_hasItsIcon();
    void file_hasTheIconOfItsKind_data();
    void file_hasTheIconOfItsKind();
    void themeOfTheUser_isAskedFirst();
    void newTheme_isAnnounced();
    void installedTheme_hasAnIconForEachKind();
    void drawing_isSharpInEverySize();
    void pictureInADrawing_isDrawn();
    void oblongPicture_keepsItsShape();
    void nearestSize_isTaken_data();
    void nearestSize_isTaken();
};

void ThemeIconSourceTest::application_hasItsIcon_data()
{
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("file");

    QTest::addRow("a full path") << u"~/pictures/own.png"_s << u"pictures/own.png"_s;
    QTest::addRow("a name in the theme") << u"ours"_s << u"data/icons/Ours/32x32/apps/ours.png"_s;
    QTest::addRow("a name that says its kind")
        << u"ours.png"_s << u"data/icons/Ours/32x32/apps/ours.png"_s;
    QTest::addRow("a name in hicolor, which has no folder of ours")
        << u"ours"_s << u"data/icons/hicolor/48x48/apps/ours.png"_s;
    QTest::addRow("outside of all themes") << u"ours"_s << u"data/icons/ours.png"_s;
    QTest::addRow("the old place of a home") << u"ours"_s << u".icons/ours.png"_s;
}

void ThemeIconSourceTest::application_hasItsIcon()
{
    QFETCH(QString, icon);
    QFETCH(QString, file);
    IconHome home;
    home.picture(file, Qt::green);
    const auto path = home.entry(icon.replace(u"~"_s, home.path({})));

    const auto answer = home.ask(path);

    QCOMPARE(answer.size(), QSize(32, 32));
    QCOMPARE(middleOf(answer), QColor(Qt::green));
}

void ThemeIconSourceTest::file_hasTheIconOfItsKind_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("icon");

    QTest::addRow("by its name") << u"a.pdf"_s << QByteArray("x") << u"application-pdf"_s;
    QTest::addRow("by its kind's kind") << u"a.mp3"_s << QByteArray("x") << u"audio-x-generic"_s;
    QTest::addRow("by its content")
        << u"picture"_s << QByteArray("\x89PNG\r\n\x1a\n") << u"image-png"_s;
    QTest::addRow("of no kind") << u"a.qqq"_s << QByteArray("\x01\x02") << u"text-x-generic"_s;
    QTest::addRow("a folder") << u"folder/x"_s << QByteArray() << u"folder"_s;
    QTest::addRow("an application's folder")
        << u"Some.app/x"_s << QByteArray() << u"application-x-executable"_s;
    QTest::addRow("an entry without an icon")
        << u"broken.desktop"_s << QByteArray("[Desktop") << u"application-x-executable"_s;
}

void ThemeIconSourceTest::file_hasTheIconOfItsKind()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, icon);
    IconHome home;
    auto path = home.put(file, bytes);
    path.chop(file.endsWith(u"/x"_s) ? 2 : 0);
    home.picture(u"data/icons/Ours/32x32/apps/%1.png"_s.arg(icon), Qt::green);

    QCOMPARE(middleOf(home.ask(path)), QColor(Qt::green));
}

void ThemeIconSourceTest::themeOfTheUser_isAskedFirst()
{
    IconHome home;
    home.theme(u"Ours"_s, IconHome::OneFolder + QByteArray("[Icon Theme]\nInherits=Parent,Ours\n"));
    home.theme(u"Parent"_s, IconHome::OneFolder);
    home.picture(u"data/icons/hicolor/48x48/apps/a.png"_s, Qt::red);
    home.picture(u"data/icons/Parent/32x32/apps/a.png"_s, Qt::blue);
    QCOMPARE(middleOf(home.ask(home.entry(u"a"_s))), QColor(Qt::blue));

    home.picture(u"data/icons/Ours/32x32/apps/a.png"_s, Qt::green);

    QCOMPARE(middleOf(home.ask(home.entry(u"a"_s), 33)), QColor(Qt::green));
}

void ThemeIconSourceTest::newTheme_isAnnounced()
{
    IconHome home;
    QSignalSpy changed(home.source.get(), &quib::IconSource::changed);
    home.theme(u"Other"_s, IconHome::OneFolder);
    home.picture(u"data/icons/Ours/32x32/apps/a.png"_s, Qt::green);
    home.picture(u"data/icons/Other/32x32/apps/a.png"_s, Qt::blue);
    const auto path = home.entry(u"a"_s);
    QCOMPARE(middleOf(home.ask(path)), QColor(Qt::green));

    home.source->setTheme(u"Other"_s);

    QCOMPARE(changed.size(), 1);
    QCOMPARE(middleOf(home.ask(path)), QColor(Qt::blue));
}

void ThemeIconSourceTest::installedTheme_hasAnIconForEachKind()
{
    IconHome home;
    home.source->setTheme({});
    const auto nothing = home.ask(home.path(u"missing"_s));

    for (const auto& name : {u"a.pdf"_s, u"a.txt"_s, u"a.png"_s, u"a.mp4"_s, u"a.zip"_s}) {
        QVERIFY2(home.ask(home.put(name, "x")) != nothing, qPrintable(name));
    }
    QVERIFY(home.ask(home.path({})) != nothing);
}

void ThemeIconSourceTest::drawing_isSharpInEverySize()
{
    IconHome home;
    const auto file = home.put(u"half.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" width="4"
        height="4"><rect width="2" height="4" fill="#00ff00"/></svg>)");

    for (const int pixels : {20, 40, 100}) {
        const auto answer = home.ask(home.entry(file), pixels);
        QCOMPARE(answer.size(), QSize(pixels, pixels));
        QCOMPARE(answer.pixelColor(pixels / 2 - 1, 1), QColor(Qt::green));
        QCOMPARE(answer.pixelColor(pixels / 2, 1).alpha(), 0);
    }
}

void ThemeIconSourceTest::pictureInADrawing_isDrawn()
{
    IconHome home;
    QFile inner(home.picture(u"inner.png"_s, Qt::green));
    QVERIFY(inner.open(QIODevice::ReadOnly));
    const auto file = home.put(u"outer.svg"_s,
                               R"(<svg xmlns="http://www.w3.org/2000/svg"
        xmlns:xlink="http://www.w3.org/1999/xlink" width="9" height="9"><image width="9" height="9"
        xlink:href="data:image/png;base64,)"
                                   + inner.readAll().toBase64() + R"("/></svg>)");

    QCOMPARE(middleOf(home.ask(home.entry(file))), QColor(Qt::green));
}

void ThemeIconSourceTest::oblongPicture_keepsItsShape()
{
    IconHome home;

    const auto answer = home.ask(home.entry(home.picture(u"wide.png"_s, Qt::green, {64, 32})), 20);

    QCOMPARE(answer.size(), QSize(20, 20));
    QCOMPARE(answer.pixelColor(1, 10), QColor(Qt::green));
    QCOMPARE(answer.pixelColor(10, 2).alpha(), 0);
    QCOMPARE(answer.pixelColor(10, 17).alpha(), 0);
}

void ThemeIconSourceTest::nearestSize_isTaken_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("taken");

    QTest::addRow("the same") << 32 << 32;
    QTest::addRow("a little less") << 30 << 32;
    QTest::addRow("nearer to the smaller") << 20 << 16;
    QTest::addRow("more than there is") << 500 << 64;
    QTest::addRow("less than there is") << 8 << 16;
}

void ThemeIconSourceTest::nearestSize_isTaken()
{
    QFETCH(int, pixels);
    QFETCH(int, taken);
    IconHome home;
    home.theme(u"Ours"_s, indexOf({64, 16, 32}));
    for (const int size : {16, 32, 64}) {
        home.picture(u"data/icons/Ours/%1/a.png"_s.arg(size), QColor(size, 0, 0), {size, size});
    }

    QCOMPARE(middleOf(home.ask(home.entry(u"a"_s), pixels)).red(), taken);
}

QTEST_GUILESS_MAIN(ThemeIconSourceTest)
#include "tst_themeiconsource.moc"
