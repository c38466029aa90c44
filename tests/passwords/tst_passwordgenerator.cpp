#include "../Text.h"
#include "PasswordGenerator.h"

#include <QtTest>

#include <random>
#include <set>
#include <string>

namespace {

using Block = std::vector<unsigned char>;

RandomBytes from(const Block &block)
{
    return [&block](unsigned char *buffer, int size) {
        std::copy_n(block.begin(), size, buffer);
        return true;
    };
}

/// The same rules once more, bit by bit and without Qt.
std::string reference(int length, int count, const Block &block)
{
    const std::string digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (unsigned bit = 0; bit < 8 * block.size(); bit += 6) {
        unsigned value = 0;
        for (unsigned i = bit; i < bit + 6; ++i) {
            const unsigned byte = i / 8 < block.size() ? block[i / 8] : 0;
            value = value * 2 + ((byte >> (7 - i % 8)) & 1);
        }
        text += digits[value];
    }
    std::string password = text.substr(block[0], std::min(unsigned(length), 1024U));
    for (char &c : password)
        c = c == 'l' ? 'L' : c == 'O' ? '0' : c == '+' ? '7' : c == '/' ? '2' : c;

    std::vector<int> places;
    std::size_t k = 512;
    for (; int(places.size()) < count && k < 1023; ++k) {
        const int place = int(block[k]) % length;
        if (std::find(places.begin(), places.end(), place) == places.end())
            places.push_back(place);
    }
    if (int(places.size()) < count || k + places.size() > block.size())
        return password;
    for (std::size_t i = 0; i < places.size(); ++i)
        password[std::size_t(places[i])] = "!@#$%^&*(){}[]<>:;,.?"[block[k + i] % 21];
    return password;
}

Block pseudoRandom(unsigned seed)
{
    std::mt19937 engine(seed);
    Block block(1024);
    for (unsigned char &byte : block)
        byte = static_cast<unsigned char>(engine() & 0xff);
    return block;
}

bool isSpecial(QChar c)
{
    return "!@#$%^&*(){}[]<>:;,.?"_s.contains(c);
}

} // namespace

class TestPasswordGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byHand()
    {
        // All zero: "A" everywhere, and only the place 0 is ever found.
        Block block(1024, 0);
        QCOMPARE(generatePassword(8, 0, from(block)), "AAAAAAAA"_s);
        QCOMPARE(generatePassword(8, 1, from(block)), "!AAAAAAA"_s);
        QCOMPARE(generatePassword(8, 2, from(block)), "AAAAAAAA"_s);
        // Byte 512 chooses place 7, 513 the same, 514 place 2; 515 and 516 choose "?" and "@".
        block[512] = 15;
        block[513] = 7;
        block[514] = 250;
        block[515] = 20;
        block[516] = 22;
        QCOMPARE(generatePassword(8, 2, from(block)), "AA@AAAA?"_s);
        // The cut starts in the text at byte 0's number: the text begins with "/wAA".
        block[0] = 255;
        QCOMPARE(generatePassword(4, 0, from(block)), "AAAA"_s);
        block[0] = 1;
        block[1] = 0x09; // "AQl": the "l" is at 2
        block[2] = 0x4e; // ... "lO"
        QCOMPARE(generatePassword(3, 0, from(block)), "QL0"_s);
    }

    void againstReference_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("count");
        const int lengthsAndCounts[][2] = {{8, 4},      {4, 1},    {16, 16}, {16, 3},    {8, 0},
                                           {8, -1},     {8, 9},    {1, 1},   {255, 100}, {300, 200},
                                           {1024, 5},   {1025, 5}, {-1, 0},  {-7, 3},    {256, 240},
                                           {1024, 150}, {30, 30}};
        for (const auto &[length, count] : lengthsAndCounts)
            QTest::addRow("%d, %d", length, count) << length << count;
    }
    void againstReference()
    {
        QFETCH(int, length);
        QFETCH(int, count);
        for (unsigned seed = 0; seed < 300; ++seed) {
            const Block block = pseudoRandom(seed);
            QCOMPARE(generatePassword(length, count, from(block)).toStdString(),
                     reference(length, count, block));
        }
    }

    void lastBytes()
    {
        // The places are complete with the last byte that may choose one, or not at all; beyond it
        // there is a character for a single place.
        Block block(1024, 0);
        block[1023] = 1;
        block[1022] = 3;
        QCOMPARE(generatePassword(4, 2, from(block)), "AAAA"_s);
        block[1022] = 0;
        block[1021] = 3;
        QCOMPARE(generatePassword(4, 2, from(block)), "!AA@"_s);
    }

    void nothing()
    {
        const Block block = pseudoRandom(1);
        QCOMPARE(generatePassword(0, 0, from(block)), QString());
        QCOMPARE(generatePassword(0, 3, from(block)), QString());
        int asked = 0;
        const auto failing = [&asked](unsigned char *, int size) {
            asked += size;
            return false;
        };
        QCOMPARE(generatePassword(8, 4, failing), QString());
        QCOMPARE(asked, 1024);
    }

    void distribution()
    {
        QMap<QChar, int> plain;
        QMap<int, int> places;
        std::set<QString> all;
        const int rounds = 4000;
        for (int round = 0; round < rounds; ++round) {
            const Block block = pseudoRandom(unsigned(round));
            const QString password = generatePassword(8, 4, from(block));
            QCOMPARE(std::count_if(password.begin(), password.end(), isSpecial), 4);
            all.insert(password);
            for (int i = 0; i < password.size(); ++i) {
                if (isSpecial(password.at(i)))
                    ++places[i];
                else
                    ++plain[password.at(i)];
            }
        }
        QCOMPARE(int(all.size()), rounds);
        for (int i = 0; i < 8; ++i)
            QVERIFY2(qAbs(places[i] - rounds / 2) < 5 * 32, qPrintable(QString::number(places[i])));
        // 62 letters and digits but "l" and "O"; four of them come for two characters each.
        QCOMPARE(plain.size(), 60);
        for (auto it = plain.cbegin(); it != plain.cend(); ++it) {
            const int share = "L072"_s.contains(it.key()) ? 2 : 1;
            QVERIFY2(qAbs(it.value() - 250 * share) < 5 * 23, qPrintable(QString(it.key())));
        }
    }
};

QTEST_GUILESS_MAIN(TestPasswordGenerator)
#include "tst_passwordgenerator.moc"
