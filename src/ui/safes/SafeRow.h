#pragma once

#include "SafeLines.h"

#include <QFrame>

class QMenu;
class Theme;

/// One safe in the list of them. Enter opens it; its menu has everything else.
class SafeRow : public QFrame
{
    Q_OBJECT

public:
    enum Command { Open, Rename, Export, ShowFolder, Locate, RemoveFromList, Delete };
    Q_ENUM(Command)

    SafeRow(const SafeInfo &safe, const QDateTime &now, const Theme &theme, QWidget *parent);

    const SafeInfo &safe() const { return m_safe; }

Q_SIGNALS:
    void commanded(SafeRow::Command command);
    /// The row above or below is to get the keyboard; 0: this one has got it.
    void stepped(int rows);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void layOut(const QDateTime &now);
    void fillMenu();

    SafeInfo m_safe;
    const Theme &m_theme;
    QMenu *m_menu;
};
