#include "BrandMark.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace {

const int lineMarkHeight = 18;
const int lineMarkGap = 10;

// The colours by which the brands are known.
const QRgb red = 0xeb4a50;
const QRgb amber = 0xf5a623;
const QRgb blue = 0x1a4fb8;
const QRgb paleBlue = 0x7fb0ff;

} // namespace

BrandMark::BrandMark(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void BrandMark::setBrand(PMCreditCard::CreditCardType brand)
{
    m_brand = brand;
    static const char *const names[] = {"Visa", "MasterCard", ""};
    setAccessibleName(QLatin1String(names[brand]));
    update();
}

void BrandMark::attachTo(QLineEdit &line)
{
    line.installEventFilter(this);
    line.setTextMargins(0, 0, sizeHint().width() + lineMarkGap, 0);
}

QSize BrandMark::sizeHint() const
{
    const int height = m_onColor ? 26 : lineMarkHeight;
    return {height * 8 / 5, height};
}

bool BrandMark::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        const auto *line = static_cast<QWidget *>(watched);
        const QSize size = sizeHint();
        setGeometry(line->width() - size.width() - lineMarkGap,
                    (line->height() - size.height()) / 2, size.width(), size.height());
    }
    return QWidget::eventFilter(watched, event);
}

void BrandMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_brand == PMCreditCard::MasterCard)
        drawCircles(painter);
    else if (m_brand == PMCreditCard::Visa)
        drawWord(painter);
}

void BrandMark::drawCircles(QPainter &painter) const
{
    const qreal side = height();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(red));
    painter.drawEllipse(QRectF(width() - side * 1.6, 0, side, side));
    QColor front(amber);
    front.setAlphaF(0.92);
    painter.setBrush(front);
    painter.drawEllipse(QRectF(width() - side, 0, side, side));
}

void BrandMark::drawWord(QPainter &painter) const
{
    QFont letters = font();
    letters.setPixelSize(height() * 3 / 5);
    letters.setWeight(QFont::Bold);
    letters.setItalic(true);
    painter.setFont(letters);
    const bool isDark = palette().color(QPalette::WindowText).lightness() > 128;
    painter.setPen(m_onColor ? QColor(Qt::white) : QColor(isDark ? paleBlue : blue));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("VISA"));
}
