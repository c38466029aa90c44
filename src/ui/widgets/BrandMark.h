#pragma once

#include "PMCreditCard.h"

#include <QWidget>

class QLineEdit;

/// The mark of a card's brand.
class BrandMark : public QWidget
{
    Q_OBJECT

public:
    explicit BrandMark(QWidget *parent);

    void setBrand(PMCreditCard::CreditCardType brand);
    /// Stays at the end of a line, and keeps the text off it.
    void attachTo(QLineEdit &line);
    /// Draws the mark for a coloured ground, where its letters are white.
    void setOnColor(bool onColor) { m_onColor = onColor; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void drawCircles(QPainter &painter) const;
    void drawWord(QPainter &painter) const;

    PMCreditCard::CreditCardType m_brand = PMCreditCard::UndefinedCard;
    bool m_onColor = false;
};
