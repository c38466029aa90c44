#include "style/Palette.h"
#include "style/TilePainter.h"

#include <QtTest>

#include <cmath>

class TestPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsReadable_data();
    void textIsReadable();
    void lettersOnTilesAreReadable();
    void tileLetters_data();
    void tileLetters();
};

namespace {

qreal luminance(const QColor &color)
{
    const auto part = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) +
           0.0722 * part(color.blueF());
}

qreal contrast(const QColor &a, const QColor &b)
{
    const qreal first = luminance(a) + 0.05;
    const qreal second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

const qreal readable = 4.5;

} // namespace

void TestPalette::textIsReadable_data()
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

void TestPalette::textIsReadable()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QVERIFY2(contrast(text, ground) >= readable,
             qPrintable(QString::number(contrast(text, ground))));
}

void TestPalette::lettersOnTilesAreReadable()
{
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        QVERIFY(contrast(Qt::white, tileColor(QString(QLatin1Char(letter)))) >= readable);
}

void TestPalette::tileLetters_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("letter");
    QTest::newRow("word") << QStringLiteral("cloud") << QStringLiteral("C");
    QTest::newRow("quoted") << QStringLiteral("\"äpfel\"") << QStringLiteral("Ä");
    QTest::newRow("digit") << QStringLiteral("4 seasons") << QStringLiteral("4");
    QTest::newRow("empty") << QString() << QStringLiteral("?");
    QTest::newRow("emoji") << QStringLiteral("\U0001F511 keys") << QStringLiteral("\U0001F511");
}

void TestPalette::tileLetters()
{
    QFETCH(QString, title);
    QTEST(tileLetter(title), "letter");
}

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
