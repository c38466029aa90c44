#include "../Text.h"
#include "CaptureGuard.h"
#include "GPMAppSettings.h"
#include "PMTranslator.h"
#include "UiSettings.h"
#include "settings/SettingsTable.h"

#include <QDialog>
#include <QMenu>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <optional>

class TestCaptureGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWindow()
    {
        const CaptureGuard guard(true, note());
        QWidget window;
        QWidget inside(&window);
        QDialog dialog(&window);
        QMenu menu;
        menu.addAction("Copy"_s);
        window.show();
        dialog.show();
        menu.popup({0, 0});
        for (const QWidget *each :
             {&window, static_cast<QWidget *>(&dialog), static_cast<QWidget *>(&menu)})
            QVERIFY(isHidden(*each));
        QCOMPARE(m_hidden.size(), 3);

        // Another kind of window has another handle.
        m_hidden.clear();
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
        window.show();
        QVERIFY(isHidden(window));
    }

    void theUsersChoice()
    {
        m_hidden.clear();
        CaptureGuard guard(false, note());
        QWidget window;
        QWidget notYet;
        window.show();
        QVERIFY(m_hidden.isEmpty());
        guard.setHides(true);
        QVERIFY(isHidden(window));
        notYet.show();
        QVERIFY(isHidden(notYet));
        guard.setHides(false);
        QVERIFY(!isHidden(window));
        QVERIFY(!isHidden(notYet));
        QVERIFY(!m_hidden.contains(0));
    }

    void theSetting()
    {
        const QTemporaryDir folder;
        UiSettings uiSettings(folder.path());
        GPMAppSettings settings(folder.path(), folder.path());
        Theme theme;
        const PMTranslator translator(folder.path());
        CaptureGuard guard(uiSettings.hiddenFromCapture(), note());
        QWidget window;
        window.show();
        QVERIFY(isHidden(window));
        SettingsTable::Parts parts = {settings, uiSettings, theme, translator, {}, {}, {}};
        const auto find = [&parts] {
            const QVector<Setting> rows = SettingsTable(parts).settings();
            const auto row = std::find_if(rows.begin(), rows.end(), [](const Setting &each) {
                return qstrcmp(each.id, "hidden_from_capture") == 0;
            });
            return row == rows.end() ? std::nullopt : std::optional<Setting>(*row);
        };
        QVERIFY(!find());
        parts.capture = &guard;
        const std::optional<Setting> row = find();
        QVERIFY(row);
        QVERIFY(row->value().toBool());
        QCOMPARE(row->apply(false), QString());
        QVERIFY(!isHidden(window));
        QVERIFY(!UiSettings(folder.path()).hiddenFromCapture());
    }

private:
    QMap<std::uintptr_t, bool> m_hidden;

    CaptureGuard::Hide note()
    {
        return [this](std::uintptr_t window, bool hide) { m_hidden[window] = hide; };
    }
    bool isHidden(const QWidget &window) const
    {
        return m_hidden.value(static_cast<std::uintptr_t>(window.internalWinId()));
    }
};

QTEST_MAIN(TestCaptureGuard)
#include "tst_captureguard.moc"
