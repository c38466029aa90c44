#include "NarrowLayout.h"

#include "ItemActions.h"
#include "ItemKinds.h"
#include "ItemListPane.h"
#include "ItemNavigation.h"
#include "ItemPane.h"
#include "Sidebar.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QApplication>
#include <QBoxLayout>
#include <QPointer>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>

NarrowLayout::NarrowLayout(const MainParts &parts, ItemNavigation &navigation, const Theme &theme,
                           QWidget *side, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_navigation(navigation)
    , m_side(side)
    , m_bar(new QWidget(side))
    , m_back(makeButton({}, "link", m_bar))
{
    m_back->setObjectName(QStringLiteral("backToListButton"));
    m_back->setIcon(theme.icon(QStringLiteral("chevron-left"), Palette::Accent));
    m_back->setToolTip(tr("Back to the list (Esc)"));
    auto *row = new QHBoxLayout(m_bar);
    row->setContentsMargins(Style::spacing, Style::gap, Style::spacing, 0);
    row->addWidget(m_back);
    row->addStretch();
    auto *all = new QVBoxLayout(side);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_bar);
    all->addWidget(m_parts.right, 1);
    m_bar->hide();
    connect(m_back, &QPushButton::clicked, this, &NarrowLayout::showList);
    auto *leave = new QShortcut(QKeySequence(Qt::Key_Escape), side);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, this, &NarrowLayout::leaveSide);
    connect(m_parts.list, &ItemListPane::opened, this, &NarrowLayout::showSelected);
    connect(m_parts.pane, &ItemPane::editStarted, this, &NarrowLayout::showSide);
    connect(m_parts.pane, &ItemPane::saved, this, &NarrowLayout::showSide);
    connect(m_parts.pane, &ItemPane::discarded, this, &NarrowLayout::followContent);
    connect(&m_parts.items, &ItemListModel::contentChanged, this, &NarrowLayout::followContent);
    connect(m_parts.sidebar, &Sidebar::categoryChosen, this, [this] {
        if (!m_parts.pane->isEditing())
            showList();
    });
}

void NarrowLayout::setRoom(int height, const QVector<QWidget *> &banners)
{
    m_room = height;
    m_banners = banners;
    for (QWidget *banner : banners)
        banner->installEventFilter(this);
    arrange();
}

bool NarrowLayout::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        arrange();
    return QObject::eventFilter(watched, event);
}

void NarrowLayout::setNarrow(bool narrow)
{
    if (narrow == m_narrow)
        return;
    m_narrow = narrow;
    m_onSide = m_parts.pane->isEditing() || m_side->isAncestorOf(QApplication::focusWidget());
    m_opened = m_parts.pane->isEditing() ? m_parts.pane->editedId() : m_parts.list->currentId();
    arrange();
}

void NarrowLayout::arrange()
{
    // What had the keyboard keeps it where it stays in sight.
    const QPointer<QWidget> focus = QApplication::focusWidget();
    m_parts.list->setVisible(!m_narrow || !m_onSide);
    m_side->setVisible(!m_narrow || m_onSide);
    m_bar->setVisible(m_narrow);
    m_back->setText(categoryName(m_parts.list->category()));
    const bool below = std::any_of(m_banners.begin(), m_banners.end(),
                                   [](const QWidget *banner) { return !banner->isHidden(); });
    const int room = below ? 0 : m_room;
    m_parts.list->setContentsMargins(0, m_narrow ? room : 0, 0, 0);
    // The item's own margin adds to it.
    const int above = 10;
    m_parts.pane->setContentsMargins(0, m_narrow ? 0 : qMax(0, room - above), 0, 0);
    if (focus && focus->isVisible())
        focus->setFocus();
}

void NarrowLayout::showSide(const QString &id)
{
    m_opened = id;
    if (!m_narrow)
        return;
    m_onSide = true;
    arrange();
    if (!m_parts.pane->isEditing())
        m_back->setFocus();
}

void NarrowLayout::showSelected()
{
    if (!m_narrow || m_onSide)
        return;
    m_navigation.settle();
    showSide(m_parts.list->selectedIds().value(0));
    // The second half of a double click is not meant for what comes up below the pointer.
    m_side->setAttribute(Qt::WA_TransparentForMouseEvents);
    QTimer::singleShot(QApplication::doubleClickInterval(), m_side, [side = m_side] {
        side->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    });
}

bool NarrowLayout::showList()
{
    if (!m_narrow || !m_onSide)
        return true;
    m_navigation.leaveEditor();
    if (m_parts.pane->isEditing())
        return false;
    m_onSide = false;
    arrange();
    m_parts.list->focusList();
    return true;
}

void NarrowLayout::leaveSide()
{
    if (!m_parts.pane->isEditing()) {
        showList();
        return;
    }
    m_navigation.leaveEditor();
    followContent();
}

void NarrowLayout::followContent()
{
    // What comes after an item that has gone was not asked for.
    if (!m_narrow || !m_onSide || m_parts.pane->isEditing())
        return;
    if (m_parts.list->contains(m_opened))
        m_back->setFocus();
    else
        showList();
}
