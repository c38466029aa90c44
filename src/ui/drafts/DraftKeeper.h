#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

class GPMAppCore;
class ItemPane;

/// Keeps what is being edited, so that neither a lock nor a power cut loses it: some seconds behind
/// each change, and at once when the safe is about to lock. What is saved or discarded is no longer
/// kept.
class DraftKeeper : public QObject
{
    Q_OBJECT

public:
    DraftKeeper(GPMAppCore &core, ItemPane &pane, QObject *parent = nullptr);

    /// The kept draft that is edited from now on.
    void setKey(const QString &key) { m_key = key; }
    /// Empty when nothing of what is edited has been kept.
    const QString &key() const { return m_key; }

private:
    void followSafe();
    void onEdited();
    void onEnded();
    void onSaved();
    void onWritten();
    void removeSaved();
    void keepLater();
    bool keepNow();
    void onKeepRequested();

    GPMAppCore &m_core;
    ItemPane &m_pane;
    QTimer *m_timer;
    QString m_key;
    QStringList m_savedKeys; ///< saved, but not yet on the disk
    QMetaObject::Connection m_written;
};
