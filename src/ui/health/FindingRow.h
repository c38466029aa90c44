#pragma once

#include "ItemHealth.h"

#include <QUrl>
#include <QWidget>

class PMListItem;
class QPushButton;
class Theme;

/// One finding: the item, what is wrong with it, and what to do about it.
class FindingRow : public QWidget
{
    Q_OBJECT

public:
    FindingRow(const HealthFinding &finding, const PMListItem &item, const QDate &today,
               const Theme &theme, QWidget *parent);

    QPushButton *ignoreButton() const { return m_ignore; }

Q_SIGNALS:
    void ignoreToggled();
    void changeRequested();
    /// The page on which the site's passwords are changed is to be opened.
    void pageRequested(const QUrl &page);

private:
    QPushButton *m_ignore;
};

/// What is wrong, in words.
QString findingText(const HealthFinding &finding, const QDate &today);

/// The standard address of the page on which a site's passwords are changed; empty when the address
/// is none of a site.
QUrl changePasswordPage(const QString &address);
