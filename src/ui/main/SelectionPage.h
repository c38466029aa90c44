#pragma once

#include <QWidget>

class PMListItem;
class QLabel;
class QPushButton;
class Theme;

/// Stands for several selected items: how many they are, and what can be done with all of them.
class SelectionPage : public QWidget
{
    Q_OBJECT

public:
    SelectionPage(const Theme &theme, QWidget *parent);

    void setItems(const QVector<PMListItem *> &items);

Q_SIGNALS:
    void favoriteRequested(bool favorite);
    void exportRequested();
    void removeRequested();
    void restoreRequested();

private:
    const Theme &m_theme;
    QLabel *m_title;
    QLabel *m_kinds;
    QPushButton *m_favorite;
    QPushButton *m_export;
    QPushButton *m_restore;
    QPushButton *m_remove;
    bool m_allFavorite = false;
};
