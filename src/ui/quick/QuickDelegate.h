#pragma once

#include "main/ItemDelegate.h"

/// Draws the rows of quick access: headings, and items with what Enter does with the chosen one.
class QuickDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    QuickDelegate(const Theme &theme, SiteIcons *icons, QObject *parent);

    /// The page's host in its heading.
    void setHost(const QString &host) { m_host = host; }
    /// Whether Enter fills; else it opens the page of a login.
    void setFilling(bool filling) { m_filling = filling; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    int paintMark(QPainter &painter, const QRect &row, const QStyleOptionViewItem &option,
                  const QModelIndex &index) const override;

private:
    QString heading(const QModelIndex &index) const;

    QString m_host;
    bool m_filling = true;
};
