#include "ClipboardKeeper.h"

#include "SecretBytes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

ClipboardKeeper::ClipboardKeeper(QObject *parent)
    : QObject(parent)
{
}

void ClipboardKeeper::copy(const QString &text, bool clearLater)
{
    m_text = text;
    QGuiApplication::clipboard()->setText(text);
    if (clearLater)
        QTimer::singleShot(keepMs, this, &ClipboardKeeper::clear);
    Q_EMIT copied(clearLater);
}

void ClipboardKeeper::clear()
{
    if (m_text.isEmpty())
        return;
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (clipboard->text() == m_text)
        clipboard->clear();
    wipe(m_text);
    Q_EMIT cleared();
}
