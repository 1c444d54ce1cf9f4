#include "picker/applicationdialog.h"

#include "picker/applicationlist.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace quib {

namespace {

constexpr int IconSize = 24;

bool movesInAList(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
        || key == Qt::Key_PageDown;
}

} // namespace

ApplicationDialog::ApplicationDialog(const QList<Application>& applications)
{
    setWindowTitle(u"Choose Application"_s);
    m_shown.setSourceModel(new ApplicationList(applications, &m_shown));
    m_shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_search.setPlaceholderText(u"Search"_s);
    m_search.setAccessibleName(u"Search"_s);
    m_search.setClearButtonEnabled(true);
    m_search.installEventFilter(this);
    m_list.setModel(&m_shown);
    m_list.setAccessibleName(u"Applications"_s);
    m_list.setIconSize({IconSize, IconSize});
    m_list.setUniformItemSizes(true);
    m_list.setSpacing(2);
    m_list.setTextElideMode(Qt::ElideRight);
    m_list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    arrange();
    connect(&m_search, &QLineEdit::textChanged, this, &ApplicationDialog::narrow);
    connect(&m_list, &QListView::doubleClicked, this, &QDialog::accept);
    connect(m_list.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ApplicationDialog::followHighlight);
    narrow({});
    m_search.setFocus();
}

QString ApplicationDialog::chosen() const
{
    return m_list.currentIndex().data(ApplicationList::PathRole).toString();
}

/// The arrows move in the list while the text is being typed.
bool ApplicationDialog::eventFilter(QObject* object, QEvent* event)
{
    if (object == &m_search && event->type() == QEvent::KeyPress
        && movesInAList(static_cast<QKeyEvent*>(event)->key())) {
        QCoreApplication::sendEvent(&m_list, event);
        return true;
    }
    return QDialog::eventFilter(object, event);
}

void ApplicationDialog::arrange()
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, this);
    m_open = buttons->button(QDialogButtonBox::Open);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(&m_search);
    column->addWidget(&m_list);
    column->addWidget(buttons);
}

void ApplicationDialog::narrow(const QString& text)
{
    m_shown.setFilterFixedString(text);
    m_list.setCurrentIndex(m_shown.index(0, 0));
    followHighlight();
}

void ApplicationDialog::followHighlight()
{
    m_open->setEnabled(m_list.currentIndex().isValid());
}

} // namespace quib
