#include "ElidedLabel.h"

#include <QEvent>

ElidedLabel::ElidedLabel(const char *tone, QWidget *parent)
    : QLabel(parent)
{
    setProperty("tone", QLatin1String(tone));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setFullText(const QString &text)
{
    // A line break of a pasted value would make the one line two.
    m_text = text.simplified();
    setAccessibleName(m_text);
    updateGeometry();
    elide();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 2, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {qMin(24, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
}

void ElidedLabel::elide()
{
    setText(fontMetrics().elidedText(m_text, Qt::ElideRight, width()));
}
