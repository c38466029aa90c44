#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// The description of a safe that lies unencrypted beside it. Times are milliseconds since the Unix
/// epoch.
struct SafeDescription
{
    int version = 1;
    QString name;
    qint64 created = 0;
    qint64 modified = 0;
    QString hint;
    QString passId;      ///< of older versions, kept; new descriptions have none
    QJsonObject unknown; ///< keys that this version does not know, kept

    QByteArray toJson() const;

    /// Takes the keys that are there and of a usable type. Nothing when the object holds none of
    /// them.
    static std::optional<SafeDescription> fromJson(const QJsonObject &object);
};
