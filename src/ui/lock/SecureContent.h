#pragma once

#include <QVariantMap>
#include <QWidget>

#include <memory>

class GPMSafe;

/// What a SecureWindow shows of an open safe.
class SecureContent : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows an unlocked safe.
    virtual void openSafe(const std::shared_ptr<GPMSafe> &safe) = 0;
    /// Drops everything of the safe.
    virtual void closeSafe() = 0;
    virtual void takeFocus() = 0;

    /// Asks about unsaved changes; false when the user wants to go on editing.
    virtual bool mayLeave() = 0;

    /// Keeps controls out of the way of the window's buttons, which take a place at the top right.
    virtual void leaveRoom(const QSize &buttons) = 0;

    /// Where the user is in the open safe, for a content that takes the place of this one.
    virtual QVariantMap place() const { return {}; }
    virtual void goTo(const QVariantMap &) {}

    virtual QByteArray splitterState() const = 0;
    virtual void restoreSplitter(const QByteArray &state) = 0;
};
