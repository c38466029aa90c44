#include "DraftKeeper.h"

#include "GPMAppCore.h"
#include "main/ItemPane.h"

#include <utility>

namespace {

const int delayMs = 2000;

} // namespace

DraftKeeper::DraftKeeper(GPMAppCore &core, ItemPane &pane, QObject *parent)
    : QObject(parent)
    , m_core(core)
    , m_pane(pane)
    , m_timer(new QTimer(this))
{
    m_timer->setObjectName(QStringLiteral("draftTimer"));
    m_timer->setSingleShot(true);
    m_timer->setInterval(delayMs);
    connect(m_timer, &QTimer::timeout, this, &DraftKeeper::keepLater);
    connect(&pane, &ItemPane::edited, this, &DraftKeeper::onEdited);
    connect(&pane, &ItemPane::saved, this, &DraftKeeper::onSaved);
    connect(&pane, &ItemPane::editEnded, this, &DraftKeeper::onEnded);
    connect(&core, &GPMAppCore::requestKeepDraft, this, &DraftKeeper::onKeepRequested);
    connect(&core, &GPMAppCore::changesGivenUp, this, &DraftKeeper::removeSaved);
    connect(&core, &GPMAppCore::currentSafeChanged, this, &DraftKeeper::followSafe);
    // What was not written by then is offered again; a later save tells nothing of it.
    connect(&core, &GPMAppCore::safeLockedChanged, this, [this] { m_savedKeys.clear(); });
    followSafe();
}

void DraftKeeper::followSafe()
{
    disconnect(m_written);
    m_savedKeys.clear();
    m_key.clear();
    if (const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe())
        m_written = connect(safe.get(), &GPMSafe::saved, this, &DraftKeeper::onWritten);
}

void DraftKeeper::onEdited()
{
    // Not put off by further changes: who types on and on loses no more than who pauses.
    if (!m_timer->isActive())
        m_timer->start();
}

void DraftKeeper::onEnded()
{
    m_timer->stop();
    // While the safe locks the drafts are closed already: what is kept stays.
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    if (safe && !m_key.isEmpty())
        safe->drafts().remove(m_key);
    m_key.clear();
}

void DraftKeeper::onSaved()
{
    m_timer->stop();
    if (!m_key.isEmpty())
        m_savedKeys.append(m_key);
    m_key.clear();
}

void DraftKeeper::onWritten()
{
    // A disk that was full when the item was saved must not cost the draft as well.
    if (!m_savedKeys.isEmpty() && !m_core.hasUnsavedChanges())
        removeSaved();
}

void DraftKeeper::removeSaved()
{
    const QStringList keys = std::exchange(m_savedKeys, {});
    for (const QString &key : keys)
        m_core.currentSafe()->drafts().remove(key);
}

void DraftKeeper::keepLater()
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    if (!safe)
        return;
    std::optional<KeptDraft> draft = m_pane.draft();
    if (!draft) {
        // Everything was taken back.
        if (!m_key.isEmpty())
            safe->drafts().remove(m_key);
        return;
    }
    if (m_key.isEmpty())
        m_key = DraftStore::newKey();
    draft->key = m_key;
    safe->drafts().keepAsync(*draft);
}

bool DraftKeeper::keepNow()
{
    m_timer->stop();
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    std::optional<KeptDraft> draft = m_pane.draft();
    if (!safe || !draft) {
        if (safe && !m_key.isEmpty())
            safe->drafts().remove(m_key);
        return true;
    }
    if (m_key.isEmpty())
        m_key = DraftStore::newKey();
    draft->key = m_key;
    return safe->drafts().keep(*draft);
}

void DraftKeeper::onKeepRequested()
{
    // Not before they are written, for which nobody waits here.
    if (const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe())
        safe->drafts().removeOnceSaved(std::exchange(m_savedKeys, {}));
    if (keepNow())
        return;
    Q_EMIT m_core.message(
        tr("Can't keep the edit."),
        tr("What you were typing could not be kept, as its file could not be written. Check the "
           "free space and the permissions of the program's data folder."));
}
