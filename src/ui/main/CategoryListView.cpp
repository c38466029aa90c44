#include "CategoryListView.h"

#include "CategoryDelegate.h"
#include "CategoryModel.h"
#include "ItemFilterModel.h"
#include "style/Theme.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

CategoryListView::CategoryListView(CategoryModel &model, const Theme &theme, QWidget *parent)
    : QListView(parent)
    , m_model(model)
    , m_theme(theme)
    , m_delegate(new CategoryDelegate(theme, this))
{
    setModel(&model);
    setItemDelegate(m_delegate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setMouseTracking(true);
    setDragDropMode(DropOnly);
}

void CategoryListView::setFolded(bool folded)
{
    m_delegate->setFolded(folded);
    viewport()->update();
}

QModelIndex CategoryListView::targetOf(const QDropEvent &event) const
{
    const QModelIndex index = indexAt(event.pos());
    if (!index.isValid() || !event.mimeData()->hasFormat(QLatin1String(itemIdsMimeType)))
        return {};
    const ItemCategory::Kind kind = m_model.category(index.row()).kind;
    const bool takes = kind == ItemCategory::Favourites || kind == ItemCategory::Trash;
    return takes ? index : QModelIndex();
}

void CategoryListView::setTarget(const QModelIndex &target)
{
    m_target = target;
    viewport()->update();
}

void CategoryListView::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(event->mimeData()->hasFormat(QLatin1String(itemIdsMimeType)));
}

void CategoryListView::dragMoveEvent(QDragMoveEvent *event)
{
    setTarget(targetOf(*event));
    event->setAccepted(m_target.isValid());
}

void CategoryListView::dragLeaveEvent(QDragLeaveEvent *)
{
    setTarget({});
}

void CategoryListView::dropEvent(QDropEvent *event)
{
    const QModelIndex target = targetOf(*event);
    setTarget({});
    if (!target.isValid())
        return;
    event->acceptProposedAction();
    const QByteArray ids = event->mimeData()->data(QLatin1String(itemIdsMimeType));
    Q_EMIT itemsDropped(m_model.category(target.row()),
                        QString::fromUtf8(ids).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
}

void CategoryListView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (m_model.category(index.row()).kind != ItemCategory::Trash)
        return;
    const bool full = m_model.count({ItemCategory::Trash}) > 0;
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("trashMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Restore all"), this, &CategoryListView::restoreAllRequested)
        ->setEnabled(full);
    menu->addAction(m_theme.icon(QStringLiteral("trash"), Palette::Text), tr("Empty trash"), this,
                    &CategoryListView::emptyTrashRequested)
        ->setEnabled(full);
    menu->popup(byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void CategoryListView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (!m_target.isValid())
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_theme.palette().color(Palette::SidebarText), 2));
    const QRectF row = CategoryDelegate::rowRect(visualRect(m_target), m_target);
    painter.drawRoundedRect(row.adjusted(1, 1, -1, -1), 6, 6);
}
