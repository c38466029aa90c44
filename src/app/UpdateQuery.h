#pragma once

#include <QString>
#include <QUrl>

#include <string>

/// The question for a newer version, and what of this computer goes into it.
namespace UpdateQuery {

/// Whether may be asked at an address: an encrypted one or, for tests, one of this computer, with
/// no question in it yet.
bool isEndpoint(const QUrl &endpoint);

/// Whether an answer from one address may lead to another: encryption is never left.
bool mayFollow(const QUrl &from, const QUrl &to);

/// A hash by which one product alone knows this computer again: it cannot be compared with what
/// other programs say. Empty for an empty identity.
QString machineHash(const std::string &identity, const QString &productId);

/// "endpoint?ver=…&pid=…&mh=…&h=…", where "h" is a check value over the other three.
QUrl address(const QUrl &endpoint, const QString &version, const QString &productId,
             const QString &machineHash);

} // namespace UpdateQuery
