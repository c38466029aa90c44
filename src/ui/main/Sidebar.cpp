#include "Sidebar.h"

#include "CategoryListView.h"
#include "CategoryModel.h"
#include "ItemKinds.h"
#include "SafeSwitcher.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QMenu>
#include <QScopedValueRollback>

namespace {

const int sidebarWidth = 216;
const int foldedSidebarWidth = 56;

} // namespace

Sidebar::Sidebar(const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_model(new CategoryModel(this))
    , m_list(new CategoryListView(*m_model, theme, this))
    , m_switcher(new SafeSwitcher(theme, this))
{
    setObjectName(QStringLiteral("mainSidebar"));
    setAttribute(Qt::WA_StyledBackground);
    m_head = new QHBoxLayout;
    m_head->addWidget(m_switcher);

    m_list->setObjectName(QStringLiteral("categoryList"));
    m_list->setAccessibleName(tr("Categories"));
    connect(m_list, &CategoryListView::itemsDropped, this, &Sidebar::itemsDropped);
    connect(m_list, &CategoryListView::restoreAllRequested, this, &Sidebar::restoreAllRequested);
    connect(m_list, &CategoryListView::emptyTrashRequested, this, &Sidebar::emptyTrashRequested);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &Sidebar::onCurrentChanged);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addLayout(m_head);
    all->addWidget(m_list, 1);
    m_foot = makeFoot(theme);
    all->addLayout(m_foot);
    setTabOrder(m_switcher, m_list);
    setFolded(false);
}

int Sidebar::fullWidth()
{
    return qMax(sidebarWidth, Style::scaled(sidebarWidth));
}

int Sidebar::foldedWidth()
{
    return qMax(foldedSidebarWidth, Style::scaled(foldedSidebarWidth));
}

void Sidebar::setFolded(bool folded)
{
    setFixedWidth(folded ? foldedWidth() : fullWidth());
    m_head->setContentsMargins(10, 8, 10, 6);
    m_foot->setDirection(folded ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_foot->setContentsMargins(folded ? 10 : 14, 4, folded ? 10 : 14, 12);
    m_switcher->setFolded(folded);
    m_list->setFolded(folded);
}

QBoxLayout *Sidebar::makeFoot(const Theme &theme)
{
    struct Button
    {
        const char *name;
        const char *icon;
        QString text;
        const char *keys; ///< told in the tool tip
        void (Sidebar::*signal)();
    };
    const Button buttons[] = {
        {"lockButton", "lock", tr("Lock"), "Ctrl+L", &Sidebar::lockRequested},
        {"generatorButton", "wand", tr("Password generator"), "", &Sidebar::generatorRequested},
        {"healthButton", "heartbeat", tr("Health"), "", &Sidebar::healthRequested},
        {"settingsButton", "settings", tr("Settings"), "Ctrl+,", &Sidebar::settingsRequested},
    };
    auto *foot = new QHBoxLayout;
    foot->setSpacing(0);
    for (const Button &button : buttons) {
        auto *tool = makeIconButton(theme.icon(QLatin1String(button.icon), Palette::SidebarText),
                                    button.text, "tool", this);
        tool->setObjectName(QLatin1String(button.name));
        if (*button.keys)
            tool->setToolTip(tr("%1 (%2)").arg(
                button.text,
                QKeySequence(QLatin1String(button.keys)).toString(QKeySequence::NativeText)));
        connect(tool, &QToolButton::clicked, this, button.signal);
        foot->addWidget(tool, 0, Qt::AlignCenter);
        foot->addStretch();
    }
    foot->addWidget(makeMenuButton(theme), 0, Qt::AlignCenter);
    return foot;
}

QWidget *Sidebar::makeMenuButton(const Theme &theme)
{
    auto *more = makeIconButton(theme.icon(QStringLiteral("menu-2"), Palette::SidebarText),
                                tr("Menu"), "tool", this);
    more->setObjectName(QStringLiteral("menuButton"));
    more->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(more);
    m_setUp = menu->addAction(tr("Finish setting up"), this, &Sidebar::setUpRequested);
    m_setUp->setObjectName(QStringLiteral("setUpAction"));
    menu->addAction(tr("Keyboard shortcuts") + QStringLiteral("\t?"), this,
                    &Sidebar::shortcutsRequested);
    menu->addAction(tr("Help"), this, &Sidebar::helpRequested);
    menu->addSeparator();
    // The window knows the key, it holds on the lock pages too; here it is only told.
    menu->addAction(tr("Exit") + QStringLiteral("\tCtrl+Q"), this, &Sidebar::exitRequested);
    more->setMenu(menu);
    return more;
}

void Sidebar::setSetUpDone(bool done)
{
    m_setUp->setVisible(!done);
}

void Sidebar::setSafe(const QString &name)
{
    m_switcher->setSafe(name);
}

void Sidebar::setSafeMenu(QMenu *menu)
{
    m_switcher->setMenu(menu);
}

void Sidebar::setCounts(const QVector<int> &counts)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    m_model->setCounts(counts);
    m_switcher->setState(tr("%1 · unlocked").arg(itemCountText(count({}))));
}

void Sidebar::setCloud(const CloudStatus &status, const QDateTime &now)
{
    m_switcher->setCloud(status, now);
}

int Sidebar::count(const ItemCategory &category) const
{
    return m_model->count(category);
}

void Sidebar::setCategory(const ItemCategory &category)
{
    const QScopedValueRollback<bool> marking(m_marking, true);
    m_model->setShown(category);
    m_list->setCurrentIndex(m_model->index(m_model->row(category)));
}

void Sidebar::takeFocus()
{
    m_list->setFocus();
}

void Sidebar::onCurrentChanged(const QModelIndex &index)
{
    if (!m_marking && index.isValid())
        Q_EMIT categoryChosen(m_model->category(index.row()));
}
