#pragma once

#include "WizardPage.h"

#include <QTimer>

#include <functional>

class QLabel;

/// How to add the extension to a browser by hand, and whether it has arrived.
class ExtensionPage : public WizardPage
{
    Q_OBJECT

public:
    struct Parts
    {
        QString folder; ///< of the extension
        std::function<bool()> isConnected;
        std::function<void(const QString &text)> copy;
    };

    ExtensionPage(Parts parts, QWidget *parent);

    /// The folder of the extension that came with the program; empty when it lacks one.
    /// @param programFolder where the program's file lies
    static QString folder(const QString &programFolder);

    bool canSkip() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makeStep(int number, const QString &text, QWidget *button);
    void look();

    Parts m_parts;
    bool m_connected = false;
    QLabel *m_state;
    QTimer m_timer;
};
