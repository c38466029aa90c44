#include "LoginForms.h"

QVector<FilledForm> fillPasswordForms(const QJsonObject &page, const QString &password)
{
    return fillForms(page, FillAction::PlacePassword, [&](const FieldPlace &) { return password; });
}

QVector<FilledForm> fillLoginForms(const QJsonObject &page, const QString &login,
                                   const QString &password)
{
    return fillForms(page, FillAction::Login, [&](const FieldPlace &place) {
        return place.kind() == FieldKind::Password ? password : login;
    });
}
