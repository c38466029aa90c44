#pragma once

#include <QMetaType>
#include <QString>
#include <QUrl>

#include <optional>

/// What was told of the newest version of the program.
struct UpdateNews
{
    QString version;
    QUrl page;    ///< where it is to be had; an encrypted web page
    QString text; ///< what is new, a few plain lines; may be empty

    /// The most that an answer may have, in bytes.
    static const int largest = 64 * 1024;

    /// Reads an answer, which is not trusted; see docs/architecture.md for its form. Nothing when
    /// anything in it is not as it has to be.
    static std::optional<UpdateNews> read(const QByteArray &answer);
};

/// Whether a version, as "1.2.10", comes after another one. False when one of them is none.
bool isNewerVersion(const QString &version, const QString &than);

Q_DECLARE_METATYPE(UpdateNews)
