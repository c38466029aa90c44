#pragma once

#include <QListView>

/// A list in which many rows are selected with mouse and keyboard, and dragged. A drag that begins
/// on a selected row, or goes sideways, takes the selected rows along; any other selects the rows
/// that it passes over.
class ItemListView : public QListView
{
    Q_OBJECT

public:
    explicit ItemListView(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The selection is another one; told once the current row has followed it, too.
    void selectionSettled();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

protected Q_SLOTS:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    enum class Gesture { None, Undecided, Selecting, Done };

    template <typename Handler>
    void settleAfter(Handler handler);
    void settle();
    QPixmap dragPicture(int count) const;
    bool isAhead() const;

    Gesture m_gesture = Gesture::None;
    QPoint m_pressed;
    bool m_pressedSelected = false;
    int m_handling = 0; ///< events that are being handled
    bool m_unsettled = false;
};
