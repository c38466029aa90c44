#include "ImportAdder.h"

#include "GPMSafe.h"
#include "PMLogin.h"
#include "PasswordStrength.h"
#include "SecretBytes.h"
#include "editor/ItemSummary.h"

#include <QtConcurrent>

#include <utility>

namespace {

/// Encrypting one takes 10 to 20 ms of a processor: a lot is done within half a second or so, and
/// what the event loop does for it takes a few milliseconds.
const int largestLot = 32;

QVector<int> rate(QVector<QString> passwords)
{
    QVector<int> levels;
    for (QString &password : passwords) {
        levels.append(passwordStrengthLevel(password));
        wipe(password);
    }
    return levels;
}

} // namespace

ImportAdder::ImportAdder(std::shared_ptr<GPMSafe> safe, std::shared_ptr<const ImportResult> result,
                         QVector<int> chosen, QObject *parent)
    : QObject(parent)
    , m_safe(std::move(safe))
    , m_result(std::move(result))
    , m_chosen(std::move(chosen))
{
    connect(m_safe.get(), &GPMSafe::saved, this, &ImportAdder::onSaved);
    connect(m_safe.get(), &GPMSafe::lockSettled, this, &ImportAdder::onLocked);
    connect(m_safe.get(), &GPMSafe::lockedChanged, this, [this](bool locked) {
        // The user has called the lock off that could not save.
        if (!locked && !m_ended)
            finish(NotSaved);
    });
    connect(&m_ratings, &QFutureWatcherBase::finished, this, &ImportAdder::addRated);
}

void ImportAdder::start()
{
    // An answer comes later, even if there is nothing to do.
    QMetaObject::invokeMethod(this, &ImportAdder::rateNext, Qt::QueuedConnection);
}

int ImportAdder::lotSize() const
{
    return qMin(largestLot, m_chosen.size() - m_added);
}

void ImportAdder::rateNext()
{
    if (m_ended)
        return;
    if (m_cancelled || lotSize() == 0) {
        finish(lotSize() == 0 ? Done : Cancelled);
        return;
    }
    QVector<QString> passwords;
    for (int i = 0; i < lotSize(); ++i)
        passwords.append(
            m_result->file.entries[std::size_t(m_chosen.at(m_added + i))].text("password"));
    m_ratings.setFuture(QtConcurrent::run(rate, passwords));
}

void ImportAdder::addRated()
{
    if (m_ended)
        return;
    const QVector<int> levels = m_ratings.result();
    for (int i = 0; i < levels.size(); ++i) {
        const ImportEntry &entry = m_result->file.entries[std::size_t(m_chosen.at(m_added + i))];
        std::unique_ptr<PMListItem> item = entry.toItem();
        if (auto *login = qobject_cast<PMLogin *>(item.get()))
            login->setStrength(static_cast<PMFieldTypes::PasswordStrength>(levels.at(i)));
        item->setSecondaryText(itemSummary(*item));
        if (const PMListItem *added = m_safe->addItem(std::move(item)))
            m_written.append(added->id());
    }
    if (!m_written.isEmpty())
        m_safe->saveChangesAsync();
    else if (!m_safe->isSettling())
        finish(Locked);
}

void ImportAdder::onSaved(bool good)
{
    if (m_ended || m_written.isEmpty())
        return;
    for (const QString &id : std::as_const(m_written)) {
        const PMListItem *item = m_safe->item(id);
        if (!item || !item->isChanged())
            continue;
        // Another save, begun before this lot came in, may be the one that was told of.
        if (!good)
            finish(NotSaved);
        return;
    }
    m_added += m_written.size();
    m_written.clear();
    Q_EMIT progress(m_added, m_chosen.size());
    rateNext();
}

void ImportAdder::onLocked()
{
    // Not before the lock has saved what there is, if the disk lets it.
    if (m_ended || m_safe->isUnlocked() || m_safe->isSettling())
        return;
    if (!m_written.isEmpty() && !m_safe->savedAtLock()) {
        finish(NotSaved);
        return;
    }
    m_added += m_written.size();
    finish(Locked);
}

void ImportAdder::finish(Outcome outcome)
{
    m_ended = true;
    m_outcome = outcome;
    Q_EMIT finished();
}
