#pragma once

#include <QObject>

#include <memory>

class GPMAppCore;
class SaveLoginDialog;
class Theme;

/// Shows what there is to ask about logins that were typed into pages, one at a time.
class SaveLoginDesk : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this.
    SaveLoginDesk(GPMAppCore &core, const Theme &theme, QObject *parent = nullptr);
    ~SaveLoginDesk() override;

    /// Makes the window anew, in another language or size.
    void renew();

private:
    void follow();
    void show();
    void drop();

    GPMAppCore &m_core;
    const Theme &m_theme;
    SaveLoginDialog *m_dialog = nullptr;
};
