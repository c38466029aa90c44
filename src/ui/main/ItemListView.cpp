#include "ItemListView.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

ItemListView::ItemListView(QWidget *parent)
    : QListView(parent)
{
    setSelectionMode(ExtendedSelection);
    setDragDropMode(DragOnly);
    // Drags are started here, by their direction.
    setDragEnabled(false);
    setDefaultDropAction(Qt::MoveAction);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
}

void ItemListView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    m_pressed = event->pos();
    m_pressedSelected = selectionModel()->isSelected(index);
    m_gesture =
        event->button() == Qt::LeftButton && index.isValid() ? Gesture::Undecided : Gesture::None;
    settleAfter([&] { QListView::mousePressEvent(event); });
}

void ItemListView::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        m_gesture = Gesture::None;
    if (m_gesture == Gesture::Undecided) {
        const QPoint way = event->pos() - m_pressed;
        if (way.manhattanLength() < QApplication::startDragDistance())
            return;
        if (m_pressedSelected || qAbs(way.x()) > qAbs(way.y())) {
            m_gesture = Gesture::Done;
            startDrag(Qt::MoveAction);
            return;
        }
        m_gesture = Gesture::Selecting;
    }
    if (m_gesture != Gesture::Done)
        settleAfter([&] { QListView::mouseMoveEvent(event); });
}

void ItemListView::startDrag(Qt::DropActions actions)
{
    const QModelIndexList rows = selectedIndexes();
    if (rows.isEmpty())
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(model()->mimeData(rows));
    drag->setPixmap(dragPicture(rows.size()));
    // Beside the pointer, so that the entry to drop it on can be seen.
    drag->setHotSpot(QPoint(-8, -8));
    drag->exec(actions, Qt::MoveAction);
}

QPixmap ItemListView::dragPicture(int count) const
{
    const QRect row = visualRect(indexAt(m_pressed));
    QPixmap picture = viewport()->grab(QRect(row.topLeft(), QSize(row.height(), row.height())));
    if (count < 2)
        return picture;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect ground(row.height() - 28, 0, 28, 20);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().highlight());
    painter.drawRoundedRect(ground, 10, 10);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(ground, Qt::AlignCenter, QString::number(count));
    return picture;
}

void ItemListView::mouseReleaseEvent(QMouseEvent *event)
{
    m_gesture = Gesture::None;
    settleAfter([&] { QListView::mouseReleaseEvent(event); });
}

void ItemListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_gesture = Gesture::None;
    settleAfter([&] { QListView::mouseDoubleClickEvent(event); });
}

void ItemListView::keyPressEvent(QKeyEvent *event)
{
    settleAfter([&] { QListView::keyPressEvent(event); });
}

QItemSelectionModel::SelectionFlags ItemListView::selectionCommand(const QModelIndex &index,
                                                                   const QEvent *event) const
{
    // What the program selects does not depend on the keys that happen to be held.
    return event ? QListView::selectionCommand(index, event) : QItemSelectionModel::ClearAndSelect;
}

void ItemListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    if (m_unsettled)
        settle();
}

void ItemListView::selectionChanged(const QItemSelection &selected,
                                    const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    m_unsettled = true;
    if (!isAhead())
        settle();
}

bool ItemListView::isAhead() const
{
    // A row is selected first and becomes the current one then.
    // Asked for every row that goes, it must not look at all that are selected.
    const QItemSelection selection = selectionModel()->selection();
    return selection.size() == 1 && selection.first().height() == 1 &&
           selection.first().topLeft() != currentIndex();
}

template <typename Handler>
void ItemListView::settleAfter(Handler handler)
{
    ++m_handling;
    handler();
    --m_handling;
    if (m_unsettled)
        settle();
}

void ItemListView::settle()
{
    if (m_handling > 0)
        return;
    m_unsettled = false;
    Q_EMIT selectionSettled();
}
