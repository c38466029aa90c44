#pragma once

#include <QWidget>

class Theme;

/// Two shutters that slide apart vertically, with a padlock between them.
class Shutters : public QWidget
{
    Q_OBJECT

public:
    Shutters(const Theme &theme, QWidget *parent);

    /// 0 is closed, 1 is open, and then nothing is in the way.
    void setProgress(qreal progress);

    /// The ground of everything in front of a locked safe.
    static void paintGround(QPainter &painter, const QRectF &area);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Theme &m_theme;
    qreal m_progress = 0;
};
