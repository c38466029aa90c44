#pragma once

#include "MainParts.h"

#include <QObject>
#include <QVector>

class ItemNavigation;
class QPushButton;
class Theme;

/// Lets the list and the item take turns in a window that is too narrow for both beside each other.
/// A click or the right arrow key opens an item, Escape or the button above it leads back.
class NarrowLayout : public QObject
{
    Q_OBJECT

public:
    /// @param side holds what is shown of the items, to which the way back is added
    NarrowLayout(const MainParts &parts, ItemNavigation &navigation, const Theme &theme,
                 QWidget *side, QObject *parent);

    void setNarrow(bool narrow);
    /// The height of the window's own buttons, which stand above the list or the item, or above the
    /// first of the banners that is shown.
    void setRoom(int height, const QVector<QWidget *> &banners);

    /// Brings the list back, after a question about what is edited. False: the user stays there.
    bool showList();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showSide(const QString &id);
    void showSelected();
    void leaveSide();
    void followContent();
    void arrange();

    MainParts m_parts;
    ItemNavigation &m_navigation;
    QWidget *m_side;
    QWidget *m_bar;
    QPushButton *m_back;
    QString m_opened; ///< the item that the side was opened for; empty for a new one
    int m_room = 0;
    QVector<QWidget *> m_banners;
    bool m_narrow = false;
    bool m_onSide = false;
};
