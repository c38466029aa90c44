#pragma once

#include <QVector>
#include <QWidget>

class ClipboardKeeper;
class QPushButton;
class Theme;

/// The buttons below an item's page or its editor, beside the word about what was copied.
class ItemFooter : public QWidget
{
    Q_OBJECT

public:
    struct State
    {
        bool editing = false;
        bool isNew = false;   ///< not in the safe yet
        bool trashed = false; ///< it lies in the trash and is not edited
    };

    ItemFooter(ClipboardKeeper &clipboard, const Theme &theme, QWidget *parent);

    void setState(const State &state);
    /// Those of the editor, in the order of Tab.
    QVector<QWidget *> editorButtons() const;

Q_SIGNALS:
    void removeRequested();
    void restoreRequested();
    void discardRequested();
    void saveRequested();

private:
    QPushButton *add(const QString &text, const char *look, const char *name,
                     void (ItemFooter::*wish)());

    QPushButton *m_remove;
    QPushButton *m_restore;
    QPushButton *m_discard;
    QPushButton *m_save;
};
