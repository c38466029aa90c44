#pragma once

#include <QSvgRenderer>
#include <QWidget>

class QPropertyAnimation;

/// The program's crystal, whose key-hole turns when a safe opens.
class Crystal : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(qreal turn READ turn WRITE setTurn)

public:
    Crystal(int side, QWidget *parent);

    /// Turns the key-hole within a time in milliseconds, at once for 0.
    void unlock(int time);
    /// Puts the key-hole upright.
    void lock();

    /// 0 is upright, 1 is a quarter of a circle.
    qreal turn() const { return m_turn; }
    void setTurn(qreal turn);

Q_SIGNALS:
    void unlocked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPart(QPainter &painter, const QString &id);

    QSvgRenderer m_picture;
    QPropertyAnimation *m_animation;
    qreal m_turn = 0;
};
