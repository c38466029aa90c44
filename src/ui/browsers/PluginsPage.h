#pragma once

#include "BrowserWatch.h"

#include <QTimer>
#include <QVector>
#include <QWidget>

class QLabel;
class QVBoxLayout;

/// The browsers of this computer, each with what is known of the extension in it and the way to
/// install it. It follows what happens while it is shown.
class PluginsPage : public QWidget
{
    Q_OBJECT

public:
    struct Parts
    {
        BrowserWatch &watch;
        /// What the connected extension says of its browser; empty while none is connected.
        std::function<QString()> connectedBundle;
        std::function<void(const BrowserInfo &browser, QWidget *owner)> install;
    };

    PluginsPage(const Parts &parts, QWidget *parent);

    bool isConnected() const { return !m_bundle.isEmpty(); }

Q_SIGNALS:
    void connectedChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void look();
    void showBrowsers();
    void showConnection();
    QWidget *makeRow(const BrowserInfo &browser);
    bool isConnectedTo(const BrowserInfo &browser) const;

    Parts m_parts;
    QVBoxLayout *m_rows;
    QVector<QWidget *> m_shown;
    QLabel *m_none;
    QLabel *m_state;
    QString m_bundle;
    QTimer m_lookTimer;
    QTimer m_linkTimer;
};
