#include "platform/linux/icons/iconhome.h"
#include "support/hungfile.h"

#include <QSignalSpy>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using quib::ThemeIconSource;

/// When an answer comes: later, once, and whatever hangs.
class IconAnswersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answer_comesLaterAndOnce();
    void sameQuestions_haveOneAnswer();
    void manyQuestions_areAllAnswered();
    void hungFile_holdsUpNoOther();
    void manyHungFiles_areGivenUpUntilOneAnswers();
    void iconThatComesTooLate_isAnnounced();
    void hungFile_holdsUpNoEnd();
    void sourceGone_nobodyAnswers();
};

void IconAnswersTest::answer_comesLaterAndOnce()
{
    IconHome home;
    const auto path = home.entry(home.picture(u"own.png"_s, Qt::green));
    QSignalSpy settled(home.source.get(), &quib::IconSource::settled);
    int answers = 0;

    for (const int round : {1, 2}) {
        home.source->find(path, 32, [&answers](const QImage&) { ++answers; });
        QCOMPARE(answers, round - 1);
        QVERIFY(home.source->isBusy());
        QTRY_COMPARE(answers, round);
        QVERIFY(!home.source->isBusy());
        QCOMPARE(settled.size(), round);
    }
}

void IconAnswersTest::sameQuestions_haveOneAnswer()
{
    IconHome home;
    const auto path = home.entry(home.picture(u"own.png"_s, Qt::green));
    QList<QImage> answers;

    for (int i = 0; i < 3; ++i) {
        home.source->find(path, 32, [&answers](const QImage& picture) { answers << picture; });
    }

    QTRY_COMPARE(answers.size(), 3);
    QCOMPARE(answers.at(0).cacheKey(), answers.at(2).cacheKey());
}

void IconAnswersTest::manyQuestions_areAllAnswered()
{
    IconHome home;
    const auto path = home.entry(home.picture(u"own.png"_s, Qt::green));
    int right = 0;

    for (int pixels = 1; pixels <= 200; ++pixels) {
        home.source->find(path, pixels, [&right, pixels](const QImage& picture) {
            right += picture.size() == QSize(pixels, pixels) && middleOf(picture) == Qt::green;
        });
    }

    QTRY_COMPARE_WITH_TIMEOUT(right, 200, 30'000);
}

void IconAnswersTest::hungFile_holdsUpNoOther()
{
    IconHome home;
    HungFile hung(home.put(u"hung"_s, "x"));
    const auto own = home.entry(home.picture(u"own.png"_s, Qt::green));
    ThemeIconSource source(50ms);
    int standIns = 0;

    QVERIFY(hung.isHung());
    for (int pixels = 1; pixels <= 5; ++pixels) {
        source.find(home.path(u"hung"_s), pixels, [&standIns, pixels](const QImage& picture) {
            standIns += picture == quib::standIn(pixels);
        });
    }

    QCOMPARE(middleOf(IconHome::ask(source, own)), QColor(Qt::green));
    QTRY_COMPARE(standIns, 5);
}

void IconAnswersTest::manyHungFiles_areGivenUpUntilOneAnswers()
{
    IconHome home;
    HungFile hung(home.put(u"hung"_s, "x"));
    const auto own = home.entry(home.picture(u"own.png"_s, Qt::green));
    ThemeIconSource source(20ms);
    int answers = 0;

    for (int pixels = 1; pixels <= 30; ++pixels) {
        source.find(home.path(u"hung"_s), pixels, [&](const QImage&) { ++answers; });
    }
    QTRY_COMPARE(answers, 30);
    QCOMPARE(IconHome::ask(source, own), quib::standIn(32));
    hung.answerAtLast();

    QTRY_COMPARE(middleOf(IconHome::ask(source, own)), QColor(Qt::green));
}

void IconAnswersTest::iconThatComesTooLate_isAnnounced()
{
    IconHome home;
    const auto file = home.picture(u"own.png"_s, Qt::green);
    const auto path = home.entry(file);
    HungFile hung(file);
    ThemeIconSource source(50ms);
    QSignalSpy changed(&source, &quib::IconSource::changed);
    QCOMPARE(IconHome::ask(source, path), quib::standIn(32));
    QCOMPARE(changed.size(), 0);

    hung.answerAtLast();

    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(middleOf(IconHome::ask(source, path)), QColor(Qt::green));
}

void IconAnswersTest::hungFile_holdsUpNoEnd()
{
    IconHome home;
    HungFile hung(home.put(u"hung"_s, "x"));
    auto source = std::make_unique<ThemeIconSource>(20ms);
    IconHome::ask(*source, home.path(u"hung"_s));

    source.reset();

    QVERIFY(hung.isHung());
}

void IconAnswersTest::sourceGone_nobodyAnswers()
{
    IconHome home;
    const auto path = home.entry(home.picture(u"own.png"_s, Qt::green));
    bool answered = false;

    for (int pixels = 1; pixels <= 20; ++pixels) {
        home.source->find(path, pixels, [&answered](const QImage&) { answered = true; });
    }
    QCoreApplication::processEvents();
    home.source.reset();
    QCoreApplication::processEvents();

    QVERIFY(!answered);
}

/// Files that hung answer as their disk goes with the tests: nothing is to be taken down around the
/// threads that still read them.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    IconAnswersTest test;
    const int result = QTest::qExec(&test, argc, argv);
    std::fflush(nullptr);
    std::_Exit(result);
}

#include "tst_iconanswers.moc"
