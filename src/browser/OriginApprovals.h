#pragma once

#include "LinkSettings.h"

#include <QObject>
#include <QStringList>

/// Which extensions the user lets connect although the program cannot know them. Each is asked
/// about once a run, one at a time.
class OriginApprovals : public QObject
{
    Q_OBJECT

public:
    /// The settings must outlive this.
    explicit OriginApprovals(LinkSettings &settings, QObject *parent = nullptr);

    bool isApproved(const QString &origin) const;
    const QStringList &approved() const { return m_settings.approvedOrigins(); }
    /// Those that asked to connect in this run and may not.
    const QStringList &refused() const { return m_refused; }
    /// The one that the user is to decide about now; empty when there is none.
    QString question() const { return m_waiting.value(0); }

public Q_SLOTS:
    /// An extension wants to connect.
    void ask(const QString &origin);
    void approve(const QString &origin);
    /// The answer no, which holds for this run, or the end of an approval.
    void refuse(const QString &origin);

Q_SIGNALS:
    /// The question is another one, or there is none any more.
    void questionChanged();
    void approvedOne(const QString &origin);
    void refusedOne(const QString &origin);

private:
    void forgetQuestion(const QString &origin);

    LinkSettings &m_settings;
    QStringList m_waiting;
    QStringList m_refused;
};
