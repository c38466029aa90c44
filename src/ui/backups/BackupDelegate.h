#pragma once

#include <QStyledItemDelegate>

class Theme;

/// Draws the rows of a list of backups: an icon, what it holds, and a second line.
class BackupDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Role { DetailRole = Qt::UserRole, DamagedRole };

    BackupDelegate(const Theme &theme, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const Theme &m_theme;
};
