#include "ClipboardKeeper.h"

#include "ClipboardMarks.h"
#include "ForeignClipboard.h"
#include "SecretMemory.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTimer>

#include <utility>

namespace {

const int answerMs = 40;

QMimeData *secretText(const QString &text)
{
    auto *data = new QMimeData;
    data->setText(text);
    for (const ClipboardMark &mark : secretClipboardMarks())
        data->setData(QString::fromStdString(mark.format), QByteArray::fromStdString(mark.data));
    return data;
}

/// What the program itself has put there. Null for what another one has: the system's own answer
/// to whose it is may lag behind, and to look into another program's data waits for that program.
const QMimeData *ownData(QClipboard::Mode mode)
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData(mode);
    return data && !data->inherits("QInternalMimeData") ? data : nullptr;
}

bool isMarked(const QMimeData &data)
{
    const std::vector<ClipboardMark> marks = secretClipboardMarks();
    return data.hasFormat(QString::fromStdString(marks.front().format));
}

} // namespace

ClipboardKeeper::ClipboardKeeper(Later later, QObject *parent)
    : QObject(parent)
    , m_later(std::move(later))
{
    if (!m_later) {
        m_later = [](int ms, const QObject *context, const std::function<void()> &action) {
            QTimer::singleShot(ms, context, action);
        };
    }
    connect(QGuiApplication::clipboard(), &QClipboard::selectionChanged, this,
            &ClipboardKeeper::dropSelection);
}

void ClipboardKeeper::copy(const QString &text, bool clearLater)
{
    m_text = SecretBytes::fromText(text);
    QGuiApplication::clipboard()->setMimeData(secretText(text));
    if (clearLater)
        m_later(keepMs, this, [this] { clear(); });
    Q_EMIT copied(clearLater);
}

void ClipboardKeeper::adoptOtherCopies(const std::function<bool()> &clearLater)
{
    m_clearLater = clearLater;
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &ClipboardKeeper::adopt);
}

void ClipboardKeeper::adopt()
{
    const QMimeData *data = ownData(QClipboard::Clipboard);
    // Addresses of files count as text too, and stay what they are.
    if (data && data->hasText() && !data->hasUrls() && !isMarked(*data))
        copy(data->text(), m_clearLater());
}

void ClipboardKeeper::clear()
{
    if (m_text.isEmpty())
        return;
    if (isOnClipboard())
        QGuiApplication::clipboard()->clear();
    m_text = {};
    Q_EMIT cleared();
}

bool ClipboardKeeper::isOnClipboard() const
{
    if (const QMimeData *data = ownData(QClipboard::Clipboard))
        return SecretBytes::fromText(data->text()) == m_text;
    // A program that keeps copies may hold the same text. Qt would wait many seconds for one that
    // does not answer.
    std::optional<std::string> text = foreignClipboardText(answerMs);
    if (!text)
        return false;
    const bool same =
        m_text.view() == QByteArray::fromRawData(text->data(), static_cast<int>(text->size()));
    wipeMemory(text->data(), text->size());
    return same;
}

void ClipboardKeeper::dropSelection()
{
    if (ownData(QClipboard::Selection))
        QGuiApplication::clipboard()->clear(QClipboard::Selection);
}
