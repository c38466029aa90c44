#pragma once

#include "DraftStore.h"
#include "dialogs/Question.h"

#include <QObject>

#include <memory>

class DraftKeeper;
class GPMSafe;
class ItemPane;
class NoticeBanner;
class QPushButton;
class Theme;

/// Offers the edits that were kept when the safe locked, one after the other.
class DraftOffer : public QObject
{
    Q_OBJECT

public:
    /// @param view the widget that the banner is for
    DraftOffer(ItemPane &pane, DraftKeeper &keeper, const Theme &theme, Asker asker, QWidget *view);

    /// To be placed where the user sees it.
    NoticeBanner *banner() const { return m_banner; }

    void openSafe(const std::shared_ptr<GPMSafe> &safe);
    /// Forgets everything about the safe.
    void closeSafe();

Q_SIGNALS:
    /// The editor shows what was kept of an item; the id is empty for a new one.
    void continued(const QString &itemId);

private:
    enum class Way { Cancel, OnItem, AsNew };

    void onLoaded(const QVector<KeptDraft> &drafts, const QStringList &unreadable);
    void showNext();
    void showDraft(const KeptDraft &draft);
    void showUnreadable();
    void continueFirst();
    void discardFirst();
    Way chooseWay(const KeptDraft &draft) const;
    const PMListItem *itemOf(const KeptDraft &draft) const;
    bool isOffering(const QString &key) const;

    ItemPane &m_pane;
    DraftKeeper &m_keeper;
    Asker m_asker;
    NoticeBanner *m_banner;
    QPushButton *m_continue;
    QPushButton *m_discard;
    std::shared_ptr<GPMSafe> m_safe;
    QVector<KeptDraft> m_drafts;
    QStringList m_unreadable;
};
