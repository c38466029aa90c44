#pragma once

#include <QFrame>

class ElidedLabel;
class PMCreditCard;
class QVBoxLayout;
class Theme;

/// A payment card as it looks: bank, brand, number, holder and month of expiry. A click on one of
/// them copies it.
class CardFace : public QFrame
{
    Q_OBJECT

public:
    CardFace(const PMCreditCard &card, const Theme &theme, QWidget *parent);

Q_SIGNALS:
    void copyRequested(const QString &value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ElidedLabel *addText(const QString &text, const QString &copied, const char *tone);

    const Theme &m_theme;
};
