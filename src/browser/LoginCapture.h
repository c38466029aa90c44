#pragma once

#include "SecretBytes.h"

#include <QJsonObject>
#include <QString>

/// A login as it was typed into a page; empty where nothing was found. The passwords are wiped with
/// the last copy.
struct CapturedLogin
{
    ~CapturedLogin()
    {
        wipe(password);
        wipe(oldPassword);
    }

    QString userName;
    QString password;
    /// Whether the form was one for a new account.
    bool isSignUp = false;
    /// The password before this one, where the form asked for it.
    QString oldPassword = {};
};

/// Finds the login in a form that was submitted: {"title", "fields": [{..., "value"}]}. The fields
/// whose names speak most for it win, the earlier of two that are equal; where the names say
/// nothing, what a person reads at the fields decides. Of several passwords the one that was typed
/// twice is the new one. The form may be of any shape.
CapturedLogin captureLogin(const QJsonObject &form);
