#include "../Text.h"
#include "Contrast.h"
#include "style/Palette.h"
#include "style/TilePainter.h"

#include <QtTest>

class TestPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsReadable_data()
    {
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("ground");
        using Role = Palette::Role;
        const QVector<QPair<Role, QVector<Role>>> pairs = {
            {Palette::Text, {Palette::Window, Palette::List, Palette::Field, Palette::Soft}},
            {Palette::Muted, {Palette::Window, Palette::List, Palette::Field, Palette::Soft}},
            {Palette::SidebarText, {Palette::Sidebar, Palette::SidebarSelection}},
            {Palette::SidebarMuted, {Palette::Sidebar}},
            {Palette::Accent, {Palette::Window, Palette::Soft}},
            {Palette::OnAccent, {Palette::Accent, Palette::AccentHover}},
            {Palette::Terrible, {Palette::Window}},
            {Palette::White, {Palette::CardStart, Palette::CardEnd}},
        };
        for (const Palette *palette : {&Palette::light(), &Palette::dark()}) {
            const char *set = palette->isDark() ? "dark" : "light";
            for (const auto &pair : pairs) {
                for (const Role ground : pair.second)
                    QTest::addRow("%s %s on %s", set, Palette::roleName(pair.first),
                                  Palette::roleName(ground))
                        << palette->color(pair.first) << palette->color(ground);
            }
            for (int level = 1; level <= 4; ++level) {
                const QColor color = palette->strength(level);
                QTest::addRow("%s badge of level %d", set, level) << color << palette->tint(color);
            }
        }
    }
    void textIsReadable()
    {
        QFETCH(QColor, text);
        QFETCH(QColor, ground);
        QVERIFY2(contrast(text, ground) >= readableContrast,
                 qPrintable(QString::number(contrast(text, ground))));
    }

    void lettersOnTilesAreReadable()
    {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            QVERIFY(contrast(Qt::white, tileColor(QString(QLatin1Char(letter)))) >=
                    readableContrast);
    }

    void tileLetters_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("letter");
        QTest::newRow("word") << "cloud"_s
                              << "C"_s;
        QTest::newRow("quoted") << "\"äpfel\""_s
                                << "Ä"_s;
        QTest::newRow("digit") << "4 seasons"_s
                               << "4"_s;
        QTest::newRow("empty") << QString() << "?"_s;
        QTest::newRow("emoji") << "\U0001F511 keys"_s
                               << "\U0001F511"_s;
    }
    void tileLetters()
    {
        QFETCH(QString, title);
        QTEST(tileLetter(title), "letter");
    }
};

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
