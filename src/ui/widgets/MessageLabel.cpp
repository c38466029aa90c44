#include "MessageLabel.h"

#include "Announcer.h"

MessageLabel::MessageLabel(QWidget *parent)
    : QLabel(parent)
{
    Announcer::install();
    setProperty("tone", QStringLiteral("error"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

void MessageLabel::setMessage(const QString &text)
{
    setText(text);
    Announcer::announce(*this, text);
}
