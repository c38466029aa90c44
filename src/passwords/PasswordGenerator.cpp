#include "PasswordGenerator.h"

#include <QByteArray>
#include <QVector>

namespace {

const int blockSize = 1024;
const int firstPlaceByte = 512;
const int endOfPlaceBytes = 1023;
const QLatin1String specialAlphabet("!@#$%^&*(){}[]<>:;,.?");

int byteAt(const QByteArray &block, int index)
{
    return static_cast<unsigned char>(block.at(index));
}

/// Letters and digits from a place in the block's Base64 text on.
QString cutFrom(const QByteArray &block, int length)
{
    QByteArray text = block.toBase64(QByteArray::OmitTrailingEquals);
    QString cut = QString::fromLatin1(text.constData() + byteAt(block, 0), qMin(length, blockSize));
    text.fill('\0');
    static const struct
    {
        char from;
        char to;
    } replacements[] = {{'l', 'L'}, {'O', '0'}, {'+', '7'}, {'/', '2'}};
    for (const auto &replacement : replacements)
        cut.replace(QLatin1Char(replacement.from), QLatin1Char(replacement.to));
    return cut;
}

void placeSpecials(QString &password, const QByteArray &block, int length, int count)
{
    if (length == 0)
        return;
    QVector<int> places;
    int next = firstPlaceByte;
    while (places.size() < count) {
        if (next == endOfPlaceBytes)
            return;
        const int place = byteAt(block, next++) % length;
        if (!places.contains(place))
            places.append(place);
    }
    // The characters follow in the block; where it ends too early none can be chosen.
    if (next + places.size() > blockSize)
        return;
    for (int i = 0; i < places.size(); ++i)
        password[places.at(i)] = specialAlphabet[byteAt(block, next + i) % specialAlphabet.size()];
}

} // namespace

QString generatePassword(int length, int specialCount, const RandomBytes &random)
{
    QByteArray block(blockSize, '\0');
    if (!random(reinterpret_cast<unsigned char *>(block.data()), blockSize))
        return {};
    // A negative length is a very large one.
    QString password = cutFrom(block, length < 0 ? blockSize : length);
    placeSpecials(password, block, length, specialCount);
    block.fill('\0');
    return password;
}
