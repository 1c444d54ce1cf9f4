#include "support/notestab.h"

#include "brand/brand.h"

using namespace Qt::StringLiterals;
using quib::Brand;

/// Every number of the notes tab, read from the live items.
class NotesViewSizesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tab = std::make_unique<NotesTab>(); }
    void cleanup() { m_tab.reset(); }

    void header_hasItsSizes();
    void editor_fillsTheRest();
    void editor_hasItsLook();
    void placeholder_isWhereTheFirstLetterComes();

private:
    std::unique_ptr<NotesTab> m_tab;
};

void NotesViewSizesTest::header_hasItsSizes()
{
    const auto heading = m_tab->rect(u"heading"_s);
    const auto copy = m_tab->rect(u"copyAll"_s);
    const auto stamp = m_tab->rect(u"insertTimestamp"_s);

    QCOMPARE(m_tab->text(u"heading"_s), u"Quick notes"_s);
    QCOMPARE(numberOf(m_tab->item(u"heading"_s), "size"), 9.5);
    QCOMPARE(heading.left(), m_tab->rect(u"tabArea"_s).left());
    QCOMPARE(stamp.right(), m_tab->rect(u"tabArea"_s).right());
    QVERIFY(copy.right() < stamp.left());
    QVERIFY(qAbs(heading.center().y() - stamp.center().y()) <= 0.5); // On whole points.
    QCOMPARE(copy.center().y(), stamp.center().y());
    QCOMPARE(textOf(m_tab->item(u"copyAll"_s), "symbol"), u"doc.on.doc"_s);
    QCOMPARE(textOf(m_tab->item(u"copyAll"_s), "help"), u"Copy all"_s);
    QCOMPARE(textOf(m_tab->item(u"insertTimestamp"_s), "symbol"), u"clock.badge"_s);
    QCOMPARE(textOf(m_tab->item(u"insertTimestamp"_s), "help"), u"Insert timestamp"_s);
}

void NotesViewSizesTest::editor_fillsTheRest()
{
    const auto area = m_tab->rect(u"tabArea"_s);
    const auto editor = inScene(m_tab->area());

    QVERIFY(editor.top() > m_tab->rect(u"copyAll"_s).bottom());
    QCOMPARE(editor.left(), area.left());
    QCOMPARE(editor.right(), area.right());
    QCOMPARE(editor.bottom(), area.bottom());
}

void NotesViewSizesTest::editor_hasItsLook()
{
    const auto* surface = ShownPanel::find(m_tab->area(), u"surface"_s);

    QCOMPARE(colorOf(surface), Brand::white(0.05));
    QCOMPARE(numberOf(surface, "radius"), 12.0);
    QCOMPARE(inScene(surface), inScene(m_tab->area()));
    QCOMPARE(numberOf(m_tab->area(), "size"), 12.5);
    QCOMPARE(m_tab->input()->property("font").value<QFont>().pixelSize(), 25); // At half the scale.
    QCOMPARE(m_tab->input()->scale(), 0.5);
}

void NotesViewSizesTest::placeholder_isWhereTheFirstLetterComes()
{
    const auto* placeholder = m_tab->placeholder();
    const auto editor = inScene(m_tab->area());

    QCOMPARE(textOf(placeholder), u"Call notes, ideas, client requests…"_s);
    QCOMPARE(numberOf(placeholder, "size"), 12.5);
    QCOMPARE(inScene(placeholder).topLeft(), editor.topLeft() + QPointF(13, 13));
    QCOMPARE(m_tab->place(0).topLeft(), editor.topLeft() + QPointF(13, 13));
}

QTEST_MAIN(NotesViewSizesTest)
#include "tst_notesviewsizes.moc"
