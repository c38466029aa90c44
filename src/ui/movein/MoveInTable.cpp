#include "MoveInTable.h"

#include "MoveInDelegate.h"
#include "MoveInModel.h"
#include "style/Style.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace {

const int markWidth = 46;
const int headerHeight = 34;

/// Shares of the width that the mark leaves, in percent, as in the order of the columns.
const int shares[] = {0, 25, 35, 19, 21};

} // namespace

MoveInTable::MoveInTable(MoveInModel &model, const Theme &theme, QWidget *parent)
    : QTableView(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("moveInTable"));
    setAccessibleName(tr("What will come in"));
    setModel(&model);
    setItemDelegate(new MoveInDelegate(theme, this));
    setFrameShape(NoFrame);
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(MoveInDelegate::rowHeight());
    QHeaderView &header = *horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setFixedHeight(Style::scaled(headerHeight));
    header.setHighlightSections(false);
    header.setSectionsClickable(false);
    header.setMinimumSectionSize(0);
}

void MoveInTable::toggle(const QVector<int> &rows, int leading)
{
    const QVariant state = m_model.index(leading, MoveInModel::Chosen).data(Qt::CheckStateRole);
    m_model.choose(rows, state.toInt() != Qt::Checked);
}

void MoveInTable::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space || !currentIndex().isValid()) {
        QTableView::keyPressEvent(event);
        return;
    }
    QVector<int> rows;
    const QModelIndexList selected = selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    if (rows.isEmpty())
        rows.append(currentIndex().row());
    toggle(rows, currentIndex().row());
}

void MoveInTable::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && index.column() == MoveInModel::Chosen &&
        index.isValid() && event->modifiers() == Qt::NoModifier)
        toggle({index.row()}, index.row());
}

void MoveInTable::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    const int mark = Style::scaled(markWidth);
    const int room = qMax(0, viewport()->width() - mark);
    setColumnWidth(MoveInModel::Chosen, mark);
    int left = room;
    for (int column = MoveInModel::Title; column < MoveInModel::Becomes; ++column) {
        const int width = room * shares[column] / 100;
        setColumnWidth(column, width);
        left -= width;
    }
    setColumnWidth(MoveInModel::Becomes, left);
}
