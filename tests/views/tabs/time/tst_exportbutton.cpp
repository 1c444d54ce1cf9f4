#include "support/panel/timetab.h"

using namespace Qt::StringLiterals;

/// The button of the time tab that writes the timesheet.
class ExportButtonTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<TimeTab>(); }
    void cleanup() { m_tab.reset(); }

    void export_writesRevealsAndChecks();
    void export_again_writesAndRevealsAgain();
    void export_thatFails_changesNothing();

private:
    QQuickItem* item(const QString& name) { return m_tab->item(name); }

    std::unique_ptr<TimeTab> m_tab;
};

void ExportButtonTest::export_writesRevealsAndChecks()
{
    m_tab->entry(3600, m_tab->client(u"Café"_s));
    QCOMPARE(m_tab->exportSymbol(), u"square.and.arrow.up"_s);

    m_tab->click(item(u"export"_s));

    QCOMPARE(m_tab->downloads.files().size(), 1);
    QCOMPARE(m_tab->opener.asked, QStringList(u"reveal "_s + m_tab->downloads.files().front()));
    QCOMPARE(m_tab->exportSymbol(), u"checkmark"_s);
}

void ExportButtonTest::export_again_writesAndRevealsAgain()
{
    m_tab->click(item(u"export"_s));
    QFile::remove(m_tab->downloads.files().front());

    m_tab->click(item(u"export"_s));

    QCOMPARE(m_tab->downloads.files().size(), 1);
    QCOMPARE(m_tab->opener.asked.size(), 2);
    QCOMPARE(m_tab->exportSymbol(), u"checkmark"_s);
}

void ExportButtonTest::export_thatFails_changesNothing()
{
    m_tab->downloads.remove();

    m_tab->click(item(u"export"_s));

    QVERIFY(m_tab->opener.asked.isEmpty());
    QCOMPARE(m_tab->exportSymbol(), u"square.and.arrow.up"_s);
}

QTEST_MAIN(ExportButtonTest)
#include "tst_exportbutton.moc"
