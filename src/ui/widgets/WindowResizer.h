#pragma once

#include <QObject>
#include <QRect>
#include <QVector>

class QWidget;

/// The edges and corners of a window that drag its size.
class WindowResizer : public QObject
{
    Q_OBJECT

public:
    explicit WindowResizer(QWidget &window);

    /// Lays the edges around what is seen of the window.
    /// @param outside how far they reach into the shadow
    /// @param inside how far they reach over the content
    void place(const QRect &seen, int outside, int inside);
    void setVisible(bool visible);

    /// A geometry whose edges were dragged by an offset; the opposite ones stay where they are even
    /// when the smallest size is reached.
    static QRect dragged(const QRect &geometry, Qt::Edges edges, const QPoint &offset,
                         const QSize &smallest);

private:
    QVector<QWidget *> m_grips;
};
