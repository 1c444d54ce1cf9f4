#include "platform/linux/hungfile.h"
#include "platform/linux/themeiconsource.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::ThemeIconSource;

/// Themes, applications and files in a home of the test's own.
class ThemeIconSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void application_hasItsIcon_data();
    void application_hasItsIcon();
    void file_hasTheIconOfItsKind_data();
    void file_hasTheIconOfItsKind();
    void themeOfTheUser_isAskedFirst();
    void installedTheme_hasAnIconForEachKind();
    void drawing_isSharpInEverySize();
    void pictureInADrawing_isDrawn();
    void oblongPicture_keepsItsShape();
    void nearestSize_isTaken_data();
    void nearestSize_isTaken();
    void hostilePicture_isTheStandIn_data();
    void hostilePicture_isTheStandIn();
    void hostileEntry_isTheStandIn_data();
    void hostileEntry_isTheStandIn();
    void hostileTheme_staysInItsFolder_data();
    void hostileTheme_staysInItsFolder();
    void hostileTheme_hugeNumbers_areAsGoodAsAny();
    void answer_comesLaterAndOnce();
    void sameQuestions_haveOneAnswer();
    void manyQuestions_areAllAnswered();
    void hungFile_holdsUpNoOther();
    void manyHungFiles_areGivenUpUntilOneAnswers();
    void iconThatComesTooLate_isAnnounced();
    void hungFile_holdsUpNoEnd();
    void sourceGone_nobodyAnswers();
    void newTheme_isAnnounced();

private:
    QString put(const QString& name, const QByteArray& bytes) const;
    QString picture(const QString& name, const QColor& color, QSize size = {32, 32}) const;
    QString entry(const QString& icon) const;
    QString theme(const QString& name, const QByteArray& index) const;
    /// The answer, at that size.
    static QImage ask(ThemeIconSource& source, const QString& path, int pixels = 32);

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<ThemeIconSource> m_source;
};

namespace {

constexpr auto OneFolder = "[Icon Theme]\nName=x\nDirectories=32x32/apps\n[32x32/apps]\nSize=32\n";

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

QColor middleOf(const QImage& image)
{
    return image.pixelColor(image.rect().center());
}

} // namespace

void ThemeIconSourceTest::init()
{
    m_source.reset();
    m_home = std::make_unique<QTemporaryDir>();
    qputenv("HOME", QFile::encodeName(m_home->path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath(u"data"_s)));
    qputenv("XDG_DATA_DIRS", "/usr/share");
    m_source = std::make_unique<ThemeIconSource>();
    m_source->setTheme(u"Ours"_s);
    theme(u"Ours"_s, OneFolder);
}

QString ThemeIconSourceTest::put(const QString& name, const QByteArray& bytes) const
{
    const auto path = m_home->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}

QString ThemeIconSourceTest::picture(const QString& name, const QColor& color, QSize size) const
{
    const auto path = put(name, {});
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    image.save(path, "PNG");
    return path;
}

QString ThemeIconSourceTest::entry(const QString& icon) const
{
    return put(u"app.desktop"_s,
               "[Desktop Entry]\nType=Application\nName=App\nExec=true\nIcon=" + icon.toUtf8()
                   + "\n");
}

QString ThemeIconSourceTest::theme(const QString& name, const QByteArray& index) const
{
    return put(u"data/icons/%1/index.theme"_s.arg(name), index);
}

QImage ThemeIconSourceTest::ask(ThemeIconSource& source, const QString& path, int pixels)
{
    QImage answer;
    source.find(path, pixels, [&answer](const QImage& picture) { answer = picture; });
    [[maybe_unused]] const bool came = QTest::qWaitFor([&] { return !answer.isNull(); }, 30'000);
    return answer;
}

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
    picture(file, Qt::green);
    const auto path = entry(icon.replace(u"~"_s, m_home->path()));

    const auto answer = ask(*m_source, path);

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
    auto path = put(file, bytes);
    path.chop(file.endsWith(u"/x"_s) ? 2 : 0);
    picture(u"data/icons/Ours/32x32/apps/%1.png"_s.arg(icon), Qt::green);

    QCOMPARE(middleOf(ask(*m_source, path)), QColor(Qt::green));
}

void ThemeIconSourceTest::themeOfTheUser_isAskedFirst()
{
    theme(u"Ours"_s, OneFolder + QByteArray("[Icon Theme]\nInherits=Parent,Ours\n"));
    theme(u"Parent"_s, OneFolder);
    picture(u"data/icons/hicolor/48x48/apps/a.png"_s, Qt::red);
    picture(u"data/icons/Parent/32x32/apps/a.png"_s, Qt::blue);
    QCOMPARE(middleOf(ask(*m_source, entry(u"a"_s))), QColor(Qt::blue));

    picture(u"data/icons/Ours/32x32/apps/a.png"_s, Qt::green);

    QCOMPARE(middleOf(ask(*m_source, entry(u"a"_s), 33)), QColor(Qt::green));
}

void ThemeIconSourceTest::installedTheme_hasAnIconForEachKind()
{
    m_source->setTheme({});
    const auto nothing = ask(*m_source, m_home->filePath(u"missing"_s));

    for (const auto& name : {u"a.pdf"_s, u"a.txt"_s, u"a.png"_s, u"a.mp4"_s, u"a.zip"_s}) {
        QVERIFY2(ask(*m_source, put(name, "x")) != nothing, qPrintable(name));
    }
    QVERIFY(ask(*m_source, m_home->path()) != nothing);
}

void ThemeIconSourceTest::drawing_isSharpInEverySize()
{
    const auto file = put(u"half.svg"_s, R"(<svg xmlns="http://www.w3.org/2000/svg" width="4"
        height="4"><rect width="2" height="4" fill="#00ff00"/></svg>)");

    for (const int pixels : {20, 40, 100}) {
        const auto answer = ask(*m_source, entry(file), pixels);
        QCOMPARE(answer.size(), QSize(pixels, pixels));
        QCOMPARE(answer.pixelColor(pixels / 2 - 1, 1), QColor(Qt::green));
        QCOMPARE(answer.pixelColor(pixels / 2, 1).alpha(), 0);
    }
}

void ThemeIconSourceTest::pictureInADrawing_isDrawn()
{
    QFile inner(picture(u"inner.png"_s, Qt::green));
    QVERIFY(inner.open(QIODevice::ReadOnly));
    const auto file = put(u"outer.svg"_s,
                          R"(<svg xmlns="http://www.w3.org/2000/svg"
        xmlns:xlink="http://www.w3.org/1999/xlink" width="9" height="9"><image width="9" height="9"
        xlink:href="data:image/png;base64,)"
                              + inner.readAll().toBase64() + R"("/></svg>)");

    QCOMPARE(middleOf(ask(*m_source, entry(file))), QColor(Qt::green));
}

void ThemeIconSourceTest::oblongPicture_keepsItsShape()
{
    const auto answer = ask(*m_source, entry(picture(u"wide.png"_s, Qt::green, {64, 32})), 20);

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
    theme(u"Ours"_s, indexOf({64, 16, 32}));
    for (const int size : {16, 32, 64}) {
        picture(u"data/icons/Ours/%1/a.png"_s.arg(size), QColor(size, 0, 0), {size, size});
    }

    QCOMPARE(middleOf(ask(*m_source, entry(u"a"_s), pixels)).red(), taken);
}

void ThemeIconSourceTest::hostilePicture_isTheStandIn_data()
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
    QTest::addRow("five megabytes") << QByteArray(5 * 1024 * 1024, ' ');
}

void ThemeIconSourceTest::hostilePicture_isTheStandIn()
{
    QFETCH(QByteArray, bytes);
    const auto fifo = QFile::encodeName(m_home->filePath(u"fifo"_s));
    QCOMPARE(mkfifo(fifo.constData(), 0600), 0);
    const auto file = put(u"hostile.svg"_s, bytes.replace("FIFO", fifo));

    QCOMPARE(ask(*m_source, entry(file)), quib::standIn(32));
}

void ThemeIconSourceTest::hostileEntry_isTheStandIn_data()
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

void ThemeIconSourceTest::hostileEntry_isTheStandIn()
{
    QFETCH(QString, icon);
    picture(u"hidden.png"_s, Qt::red);
    const auto fifo = m_home->filePath(u"fifo"_s);
    QCOMPARE(mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);

    QCOMPARE(ask(*m_source, entry(icon == u"FIFO"_s ? fifo : icon)), quib::standIn(32));
}

void ThemeIconSourceTest::hostileTheme_staysInItsFolder_data()
{
    QTest::addColumn<QByteArray>("index");

    QTest::addRow("by a folder") << QByteArray(
        "[Icon Theme]\nName=x\nDirectories=../../../hidden\n[../../../hidden]\nSize=32\n");
    QTest::addRow("by a parent") << QByteArray("[Icon Theme]\nName=x\nInherits=../../hidden\n");
}

void ThemeIconSourceTest::hostileTheme_staysInItsFolder()
{
    QFETCH(QByteArray, index);
    theme(u"Ours"_s, index);
    put(u"hidden/index.theme"_s, "[Icon Theme]\nName=x\nDirectories=.\n[.]\nSize=32\n");
    picture(u"hidden/a.png"_s, Qt::red);

    QCOMPARE(ask(*m_source, entry(u"a"_s)), quib::standIn(32));
}

void ThemeIconSourceTest::hostileTheme_hugeNumbers_areAsGoodAsAny()
{
    theme(u"Ours"_s,
          "[Icon Theme]\nName=x\nDirectories=32\n[32]\nSize=2147483647\n"
          "Scale=2147483647\nThreshold=-2147483648\n");
    picture(u"data/icons/Ours/32/a.png"_s, Qt::green);

    QCOMPARE(middleOf(ask(*m_source, entry(u"a"_s))), QColor(Qt::green));
}

void ThemeIconSourceTest::answer_comesLaterAndOnce()
{
    const auto path = entry(picture(u"own.png"_s, Qt::green));
    QSignalSpy settled(m_source.get(), &quib::IconSource::settled);
    int answers = 0;

    for (const int round : {1, 2}) {
        m_source->find(path, 32, [&answers](const QImage&) { ++answers; });
        QCOMPARE(answers, round - 1);
        QVERIFY(m_source->isBusy());
        QTRY_COMPARE(answers, round);
        QVERIFY(!m_source->isBusy());
        QCOMPARE(settled.size(), round);
    }
}

void ThemeIconSourceTest::sameQuestions_haveOneAnswer()
{
    const auto path = entry(picture(u"own.png"_s, Qt::green));
    QList<QImage> answers;

    for (int i = 0; i < 3; ++i) {
        m_source->find(path, 32, [&answers](const QImage& picture) { answers << picture; });
    }

    QTRY_COMPARE(answers.size(), 3);
    QCOMPARE(answers.at(0).cacheKey(), answers.at(2).cacheKey());
}

void ThemeIconSourceTest::manyQuestions_areAllAnswered()
{
    const auto path = entry(picture(u"own.png"_s, Qt::green));
    int right = 0;

    for (int pixels = 1; pixels <= 200; ++pixels) {
        m_source->find(path, pixels, [&right, pixels](const QImage& picture) {
            right += picture.size() == QSize(pixels, pixels) && middleOf(picture) == Qt::green;
        });
    }

    QTRY_COMPARE_WITH_TIMEOUT(right, 200, 30'000);
}

void ThemeIconSourceTest::hungFile_holdsUpNoOther()
{
    HungFile hung(put(u"hung"_s, "x"));
    const auto own = entry(picture(u"own.png"_s, Qt::green));
    ThemeIconSource source(50ms);
    int standIns = 0;

    QVERIFY(hung.isHung());
    for (int pixels = 1; pixels <= 5; ++pixels) {
        source.find(m_home->filePath(u"hung"_s), pixels,
                    [&standIns, pixels](const QImage& picture) {
                        standIns += picture == quib::standIn(pixels);
                    });
    }

    QCOMPARE(middleOf(ask(source, own)), QColor(Qt::green));
    QTRY_COMPARE(standIns, 5);
}

void ThemeIconSourceTest::manyHungFiles_areGivenUpUntilOneAnswers()
{
    HungFile hung(put(u"hung"_s, "x"));
    const auto own = entry(picture(u"own.png"_s, Qt::green));
    ThemeIconSource source(20ms);
    int answers = 0;

    for (int pixels = 1; pixels <= 30; ++pixels) {
        source.find(m_home->filePath(u"hung"_s), pixels, [&](const QImage&) { ++answers; });
    }
    QTRY_COMPARE(answers, 30);
    QCOMPARE(ask(source, own), quib::standIn(32));
    hung.answerAtLast();

    QTRY_COMPARE(middleOf(ask(source, own)), QColor(Qt::green));
}

void ThemeIconSourceTest::iconThatComesTooLate_isAnnounced()
{
    const auto file = picture(u"own.png"_s, Qt::green);
    const auto path = entry(file);
    HungFile hung(file);
    ThemeIconSource source(50ms);
    QSignalSpy changed(&source, &quib::IconSource::changed);
    QCOMPARE(ask(source, path), quib::standIn(32));
    QCOMPARE(changed.size(), 0);

    hung.answerAtLast();

    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(middleOf(ask(source, path)), QColor(Qt::green));
}

void ThemeIconSourceTest::hungFile_holdsUpNoEnd()
{
    HungFile hung(put(u"hung"_s, "x"));
    auto source = std::make_unique<ThemeIconSource>(20ms);
    ask(*source, m_home->filePath(u"hung"_s));

    source.reset();

    QVERIFY(hung.isHung());
}

void ThemeIconSourceTest::sourceGone_nobodyAnswers()
{
    const auto path = entry(picture(u"own.png"_s, Qt::green));
    bool answered = false;

    for (int pixels = 1; pixels <= 20; ++pixels) {
        m_source->find(path, pixels, [&answered](const QImage&) { answered = true; });
    }
    QCoreApplication::processEvents();
    m_source.reset();
    QCoreApplication::processEvents();

    QVERIFY(!answered);
}

void ThemeIconSourceTest::newTheme_isAnnounced()
{
    QSignalSpy changed(m_source.get(), &quib::IconSource::changed);
    theme(u"Other"_s, OneFolder);
    picture(u"data/icons/Ours/32x32/apps/a.png"_s, Qt::green);
    picture(u"data/icons/Other/32x32/apps/a.png"_s, Qt::blue);
    const auto path = entry(u"a"_s);
    QCOMPARE(middleOf(ask(*m_source, path)), QColor(Qt::green));

    m_source->setTheme(u"Other"_s);

    QCOMPARE(changed.size(), 1);
    QCOMPARE(middleOf(ask(*m_source, path)), QColor(Qt::blue));
}

QTEST_GUILESS_MAIN(ThemeIconSourceTest)
#include "tst_themeiconsource.moc"
