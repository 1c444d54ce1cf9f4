#include "picker/applicationdialog.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using quib::ApplicationDialog;

class ApplicationDialogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void opensWithAllAndTheFirstHighlighted();
    void typing_narrowsTheList();
    void noMatch_choosesNothing();
    void escape_closesWithoutAChoice();
    void doubleClick_chooses();
    void everyApplication_hasAnIcon();
    void longName_isCut();
    void noApplications_nothingToChoose();

private:
    QLineEdit& search() { return *m_dialog->findChild<QLineEdit*>(); }
    QListView& list() { return *m_dialog->findChild<QListView*>(); }
    bool canOpen();
    void show(const QList<quib::Application>& applications);

    std::unique_ptr<ApplicationDialog> m_dialog;
};

void ApplicationDialogTest::init()
{
    show({{.path = u"/a.desktop"_s, .name = u"Alpha"_s, .icon = u"no such icon"_s},
          {.path = u"/b.desktop"_s, .name = u"Beta <b>Writer</b>"_s, .icon = {}},
          {.path = u"/c.desktop"_s, .name = u"Gamma"_s, .icon = u"/no/such/picture.png"_s}});
}

void ApplicationDialogTest::show(const QList<quib::Application>& applications)
{
    m_dialog = std::make_unique<ApplicationDialog>(applications);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

bool ApplicationDialogTest::canOpen()
{
    for (const auto* button : m_dialog->findChildren<QPushButton*>()) {
        if (button->text().contains(u"Open"_s)) {
            return button->isEnabled();
        }
    }
    return false;
}

void ApplicationDialogTest::opensWithAllAndTheFirstHighlighted()
{
    QCOMPARE(list().model()->rowCount(), 3);
    QCOMPARE(m_dialog->chosen(), u"/a.desktop"_s);
    QVERIFY(canOpen());
}

void ApplicationDialogTest::typing_narrowsTheList()
{
    QTest::keyClicks(&search(), u"WRIT"_s);

    QCOMPARE(list().model()->rowCount(), 1);
    QCOMPARE(m_dialog->chosen(), u"/b.desktop"_s);
}

void ApplicationDialogTest::noMatch_choosesNothing()
{
    const QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);

    QTest::keyClicks(&search(), u"zzz"_s);
    QTest::keyClick(&search(), Qt::Key_Return);

    QVERIFY(!canOpen());
    QVERIFY(m_dialog->chosen().isEmpty());
    QVERIFY(accepted.isEmpty());
}

void ApplicationDialogTest::escape_closesWithoutAChoice()
{
    const QSignalSpy rejected(m_dialog.get(), &QDialog::rejected);

    QTest::keyClick(&search(), Qt::Key_Escape);

    QCOMPARE(rejected.size(), 1);
}

void ApplicationDialogTest::doubleClick_chooses()
{
    const QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
    const auto last = list().visualRect(list().model()->index(2, 0)).center();

    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, last);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, last);

    QCOMPARE(accepted.size(), 1);
    QCOMPARE(m_dialog->chosen(), u"/c.desktop"_s);
}

void ApplicationDialogTest::everyApplication_hasAnIcon()
{
    for (int row = 0; row < 3; ++row) {
        const auto icon = list().model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
        QVERIFY(!icon.isNull());
    }
}

void ApplicationDialogTest::longName_isCut()
{
    show({{.path = u"/a"_s, .name = QString(1'000'000, u'W'), .icon = {}}});

    QVERIFY(list().model()->index(0, 0).data().toString().size() <= 200);
}

void ApplicationDialogTest::noApplications_nothingToChoose()
{
    show({});

    QVERIFY(!canOpen());
    QVERIFY(m_dialog->chosen().isEmpty());
}

QTEST_MAIN(ApplicationDialogTest)
#include "tst_applicationdialog.moc"
