#pragma once

#include "FormFiller.h"

/// The password into every field of the page that takes one.
QVector<FilledForm> fillPasswordForms(const QJsonObject &page, const QString &password);

/// The login name and the password into the visible fields of the page that take them.
QVector<FilledForm> fillLoginForms(const QJsonObject &page, const QString &login,
                                   const QString &password);
