#include "WindowResizer.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace {

const int cornerLength = 14;

/// One edge or corner.
class Grip : public QWidget
{
public:
    Grip(QWidget &window, Qt::Edges edges, Qt::CursorShape cursor)
        : QWidget(&window)
        , m_edges(edges)
    {
        setObjectName(QStringLiteral("windowGrip"));
        setCursor(cursor);
    }

    Qt::Edges edges() const { return m_edges; }

protected:
    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        QWindow *handle = window()->windowHandle();
        // The window manager snaps while it drags.
        m_dragging = !handle || !handle->startSystemResize(m_edges);
        m_from = event->globalPos();
        m_geometry = window()->geometry();
    }

    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (m_dragging)
            window()->setGeometry(WindowResizer::dragged(
                m_geometry, m_edges, event->globalPos() - m_from, window()->minimumSize()));
    }

    void mouseReleaseEvent(QMouseEvent *) override { m_dragging = false; }

private:
    Qt::Edges m_edges;
    bool m_dragging = false;
    QPoint m_from;
    QRect m_geometry;
};

} // namespace

WindowResizer::WindowResizer(QWidget &window)
    : QObject(&window)
{
    struct Row
    {
        Qt::Edges edges;
        Qt::CursorShape cursor;
    };
    // The corners come last: they lie above the edges.
    const Row rows[] = {
        {Qt::LeftEdge, Qt::SizeHorCursor},
        {Qt::RightEdge, Qt::SizeHorCursor},
        {Qt::TopEdge, Qt::SizeVerCursor},
        {Qt::BottomEdge, Qt::SizeVerCursor},
        {Qt::LeftEdge | Qt::TopEdge, Qt::SizeFDiagCursor},
        {Qt::RightEdge | Qt::BottomEdge, Qt::SizeFDiagCursor},
        {Qt::RightEdge | Qt::TopEdge, Qt::SizeBDiagCursor},
        {Qt::LeftEdge | Qt::BottomEdge, Qt::SizeBDiagCursor},
    };
    for (const Row &row : rows)
        m_grips.append(new Grip(window, row.edges, row.cursor));
}

void WindowResizer::place(const QRect &seen, int outside, int inside)
{
    const int depth = outside + inside;
    for (QWidget *widget : m_grips) {
        const Qt::Edges edges = static_cast<Grip *>(widget)->edges();
        const bool corner =
            (edges & (Qt::LeftEdge | Qt::RightEdge)) && (edges & (Qt::TopEdge | Qt::BottomEdge));
        const int length = corner ? qMax(depth, cornerLength) : depth;
        QRect place = seen.adjusted(-outside, -outside, outside, outside);
        if (edges & Qt::LeftEdge)
            place.setWidth(length);
        if (edges & Qt::RightEdge)
            place.setLeft(place.right() + 1 - length);
        if (edges & Qt::TopEdge)
            place.setHeight(length);
        if (edges & Qt::BottomEdge)
            place.setTop(place.bottom() + 1 - length);
        widget->setGeometry(place);
        widget->raise();
    }
}

void WindowResizer::setVisible(bool visible)
{
    for (QWidget *grip : m_grips)
        grip->setVisible(visible);
}

QRect WindowResizer::dragged(const QRect &geometry, Qt::Edges edges, const QPoint &offset,
                             const QSize &smallest)
{
    QRect result = geometry;
    if (edges & Qt::LeftEdge)
        result.setLeft(qMin(geometry.left() + offset.x(), geometry.right() + 1 - smallest.width()));
    if (edges & Qt::RightEdge)
        result.setWidth(qMax(geometry.width() + offset.x(), smallest.width()));
    if (edges & Qt::TopEdge)
        result.setTop(qMin(geometry.top() + offset.y(), geometry.bottom() + 1 - smallest.height()));
    if (edges & Qt::BottomEdge)
        result.setHeight(qMax(geometry.height() + offset.y(), smallest.height()));
    return result;
}
