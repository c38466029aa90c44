#include "ItemFile.h"

#include "SafeCrypto.h"
#include "SecretBytes.h"

#include <QRegularExpression>

QString ItemFileName::text() const
{
    return generation == 0 ? id : id + QLatin1Char('.') + QString::number(generation);
}

ItemFileName ItemFileName::parse(const QString &fileName)
{
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    bool isNumber = false;
    const int generation = dot > 0 ? fileName.mid(dot + 1).toInt(&isNumber) : 0;
    if (!isNumber || generation < 1)
        return {fileName, 0};
    return {fileName.left(dot), generation};
}

bool isInterruptedWrite(const QString &fileName)
{
    static const QRegularExpression pattern(
        QStringLiteral("^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}(\\.[0-9]+)?\\.[A-Za-z]{6}$"));
    return pattern.match(fileName).hasMatch();
}

std::optional<PMItemDocument> readItemFile(FileLayer &files, const QString &path,
                                           const QByteArray &password)
{
    const std::optional<QByteArray> text = files.read(path);
    if (!text)
        return std::nullopt;
    std::optional<QByteArray> json = decryptString(password, QString::fromLatin1(*text));
    if (!json)
        return std::nullopt;
    const auto decrypt = [&password](const QString &secret) {
        return decryptString(password, secret);
    };
    std::optional<PMItemDocument> document = PMItemDocument::fromJson(*json, decrypt);
    wipe(*json);
    return document;
}

std::optional<QByteArray> encryptItem(const SafeEnvironment &environment,
                                      const QByteArray &password, const PMItemDocument &document)
{
    const auto encrypt = [&](const QByteArray &plain) -> std::optional<QString> {
        QString secret;
        if (!encryptString(password, plain, secret, environment.random))
            return std::nullopt;
        return secret;
    };
    std::optional<QByteArray> json = document.toJson(encrypt);
    if (!json)
        return std::nullopt;
    QString text;
    const bool encrypted = encryptString(password, *json, text, environment.random);
    wipe(*json);
    return encrypted ? std::make_optional(text.toLatin1()) : std::nullopt;
}

bool writeItemFile(const SafeEnvironment &environment, const QString &path,
                   const QByteArray &password, const PMItemDocument &document)
{
    const std::optional<QByteArray> text = encryptItem(environment, password, document);
    return text && environment.files->writeBytes(path, *text);
}
