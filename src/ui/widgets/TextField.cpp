#include "TextField.h"

#include <QEvent>

namespace {

const qreal placeholderOpacity = 0.7;

} // namespace

void TextField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        fadePlaceholder();
}

void TextField::fadePlaceholder()
{
    // The style sheet gives both the same colour.
    QPalette colors = palette();
    QColor pale = colors.color(QPalette::Text);
    pale.setAlphaF(placeholderOpacity);
    if (colors.color(QPalette::PlaceholderText) == pale)
        return;
    colors.setColor(QPalette::PlaceholderText, pale);
    setPalette(colors);
}
