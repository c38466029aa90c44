#include "PMUiProvider.h"
#include "SafeLayout.h"
#include "UiTesting.h"
#include "cloud/CloudDesk.h"
#include "cloud/CloudPanel.h"
#include "main/MainView.h"
#include "style/Theme.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include <optional>

namespace {

using State = CloudStatus::State;
const QString newPassword = "another password 2"_s;
const int quickly = 20000; // how long to wait for what comes at once

/// One computer with its windows, which shares a cloud folder with others.
struct Computer
{
    QTemporaryDir home;
    GPMAppCore core;
    PMUiProvider ui;

    explicit Computer(const QString &infoFile)
        : core(places(home.path(), infoFile))
        , ui(core, [] { return true; })
    {
        PMFieldTypes::registerMetaTypes();
        ui.connectCore();
        ui.createMainWindow();
        ui.openMainView({});
        ui.bringToFront();
    }
    static GPMAppCore::Places places(const QString &home, const QString &infoFile)
    {
        GPMAppCore::Places places = TestCore::places(home);
        places.cloudInfoFiles = QStringList{infoFile};
        places.cloudPauses = {0, 3600000};
        return places;
    }

    QString add(const QString &title)
    {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(title);
        login->setLogin("ana"_s);
        return core.modelAddItem(std::move(login))->id();
    }
    /// Nothing when no answer comes.
    std::optional<SafeUnlock::Outcome> unlock(const QString &password)
    {
        std::optional<SafeUnlock::Outcome> outcome;
        QObject here;
        QObject::connect(&core, &GPMAppCore::unlockFinished, &here,
                         [&outcome](SafeUnlock::Outcome answer) { outcome = answer; });
        core.unlockCurrentSafe(password);
        (void)QTest::qWaitFor([&outcome] { return outcome.has_value(); }, quickly);
        return outcome;
    }
    PMListItem *item(const QString &id) { return core.currentSafe()->item(id); }
    State state() { return core.cloud().status().state; }
    QWidget &window() { return *ui.mainWindow(); }
    /// A shown window of this computer; null when there is none.
    QWidget *beside(const char *name) { return shown(window(), name); }
    static QWidget *shown(QWidget &parent, const char *name)
    {
        const auto all = parent.findChildren<QWidget *>(QLatin1String(name));
        for (QWidget *widget : all) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void press(const char *button) { find<QAbstractButton>(window(), button)->click(); }
    void choose(const QString &title)
    {
        auto *list = find<QAbstractItemView>(window(), "itemList");
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data().toString() == title)
                list->setCurrentIndex(index);
        }
    }
};

} // namespace

class TestCloud : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_shared;
    std::unique_ptr<Computer> m_one;
    std::unique_ptr<Computer> m_two;

    QString cloud() const { return m_shared->filePath("cloud"_s); }
    QString infoFile() const { return m_shared->filePath("info.json"_s); }

    QWidget *panelOf(Computer &computer)
    {
        computer.press("settingsButton");
        auto *pages = find<QListWidget>(computer.window(), "settingsPages");
        pages->setCurrentRow(Setting::Cloud);
        return computer.beside("cloud_state");
    }

    /// Both have the safe, by the ways that a user goes.
    void share()
    {
        QVERIFY(m_one->core.createSafe("Work"_s, testPassword, {}));
        QWidget *panel = panelOf(*m_one);
        QVERIFY(panel);
        QTRY_VERIFY_WITH_TIMEOUT(find<QComboBox>(*panel, "cloudPlace")->count() == 1, quickly);
        find<QAbstractButton>(*panel, "cloudToggle")->click();
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        QVERIFY(find<QAbstractButton>(*panel, "cloudToggle")->isChecked());

        m_two->core.cloudFolders().look();
        auto *offer = find<QAbstractButton>(m_two->window(), "cloudOfferButton");
        QTRY_VERIFY_WITH_TIMEOUT(offer->isVisible(), quickly);
        offer->click();
        QWidget *import = m_two->beside("cloudImportDialog");
        QVERIFY(import);
        auto *take = find<QAbstractButton>(*import, "bringOverButton");
        QTRY_VERIFY_WITH_TIMEOUT(take->isEnabled(), quickly);
        take->click();
        QTRY_VERIFY_WITH_TIMEOUT(Computer::shown(m_two->window(), "wayButton"), quickly);
        find<QAbstractButton>(*m_two->beside("progressDialog"), "wayButton")->click();
        QVERIFY(m_two->core.currentSafe());
        QVERIFY(m_two->core.currentSafe()->unlock(testPassword));
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Synchronised, quickly);
    }

private Q_SLOTS:
    void init()
    {
        m_shared = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(cloud()));
        QFile info(infoFile());
        QVERIFY(info.open(QIODevice::WriteOnly));
        const QJsonObject account{{"path"_s, cloud()}};
        info.write(QJsonDocument(QJsonObject{{"personal"_s, account}}).toJson());
        info.close();
        m_one = std::make_unique<Computer>(infoFile());
        m_two = std::make_unique<Computer>(infoFile());
    }
    void cleanup()
    {
        m_one.reset();
        m_two.reset();
    }

    void aSafeComesToTheOtherComputerAndItsItemsFollow()
    {
        share();
        if (QTest::currentTestFailed())
            return;
        auto *list = find<QAbstractItemView>(m_two->window(), "itemList");
        const QString first = m_one->add("First"_s);
        QTRY_COMPARE_WITH_TIMEOUT(list->model()->rowCount(), 1, quickly);
        // The round goes on after the item came in.
        QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>(m_two->window(), "snackText")->text(),
                                  "One item came from the cloud folder"_s, quickly);
        QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>(m_two->window(), "safeState")->text(),
                                  "Synchronised"_s, quickly);
        m_one->core.modelItemDeleted(first);
        QTRY_COMPARE_WITH_TIMEOUT(list->model()->rowCount(), 0, quickly);
    }

    /// Whatever comes while an item is edited, what the user types stays and can be saved.
    void whatIsEditedIsNotOverwritten_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what : {"changed", "trashed", "deleted"})
            QTest::newRow(what) << QString::fromLatin1(what);
    }
    void whatIsEditedIsNotOverwritten()
    {
        share();
        if (QTest::currentTestFailed())
            return;
        QFETCH(QString, what);
        const QString id = m_one->add("Shop"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->item(id), quickly);
        m_two->choose("Shop"_s);
        m_two->press("editButton");
        auto *field = find<QLineEdit>(m_two->window(), "loginField");
        field->setText("typed"_s);
        if (what == QLatin1String("changed")) {
            m_one->item(id)->setTitle("Their title"_s);
            m_one->core.modelItemChanged(id);
            QTRY_COMPARE_WITH_TIMEOUT(m_two->item(id)->title(), "Their title"_s, quickly);
        } else if (what == QLatin1String("trashed")) {
            m_one->core.modelItemDeleted(id);
            QTRY_VERIFY_WITH_TIMEOUT(m_two->item(id)->deleted(), quickly);
        } else {
            m_one->core.modelItemPurged(id);
            QTRY_VERIFY_WITH_TIMEOUT(!m_two->item(id), quickly);
        }
        QCOMPARE(m_two->beside("goneNotice") != nullptr, what == QLatin1String("deleted"));
        QCOMPARE(find<QLineEdit>(m_two->window(), "loginField")->text(), "typed"_s);
        m_two->press("saveButton");
        QVERIFY(!m_two->beside("goneNotice"));
        const auto arrived = [&]() -> const PMLogin * {
            for (PMListItem *item : m_one->core.currentSafe()->items()) {
                const auto *login = qobject_cast<PMLogin *>(item);
                if (login->login() == QLatin1String("typed") && !login->deleted())
                    return login;
            }
            return nullptr;
        };
        QTRY_VERIFY_WITH_TIMEOUT(arrived(), quickly);
        QCOMPARE(m_one->core.currentSafe()->itemCount(), 1);
        QCOMPARE(arrived()->title(), what == QLatin1String("changed") ? "Their title"_s : "Shop"_s);
    }

    void anEditThatChangesNothingGoesWithItsItem()
    {
        share();
        if (QTest::currentTestFailed())
            return;
        const QString id = m_one->add("Shop"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->item(id), quickly);
        m_two->choose("Shop"_s);
        m_two->press("editButton");
        m_one->core.modelItemPurged(id);
        QTRY_VERIFY_WITH_TIMEOUT(!m_two->item(id), quickly);
        QVERIFY(!m_two->beside("goneNotice") && !Computer::shown(m_two->window(), "saveButton"));
    }

    void aPasswordThatWasChangedElsewhereIsAskedFor()
    {
        share();
        if (QTest::currentTestFailed())
            return;
        const QString id = m_one->add("Shop"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_two->item(id), quickly);
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        QVERIFY(m_one->core.currentSafe()->changePassword(newPassword));
        m_one->core.syncCurrentSafeSource();
        QTRY_VERIFY_WITH_TIMEOUT(m_two->beside("cloudPasswordDialog"), quickly);
        const auto answer = [this](const QString &password) {
            QWidget *dialog = m_two->beside("cloudPasswordDialog");
            find<QLineEdit>(*dialog, "cloudPasswordField")->setText(password);
            QTest::keyClick(find<QLineEdit>(*dialog, "cloudPasswordField"), Qt::Key_Return);
        };
        answer("wrong"_s);
        QTRY_VERIFY_WITH_TIMEOUT(Computer::shown(m_two->window(), "cloudPasswordMessage"), quickly);
        find<QAbstractButton>(*m_two->beside("cloudPasswordDialog"), "notNowButton")->click();
        QVERIFY(!m_two->beside("cloudPasswordDialog"));

        // Nobody is told that a password is wrong which the safe has elsewhere.
        m_two->core.lockCurrentSafe();
        using Outcome = SafeUnlock::Outcome;
        QCOMPARE(m_two->unlock(newPassword), std::optional(Outcome::MirrorPassword));
        QCOMPARE(m_two->unlock("wrong"_s), std::optional(Outcome::WrongPassword));
        QCOMPARE(m_two->unlock(testPassword), std::optional(Outcome::Unlocked));
        QTRY_VERIFY_WITH_TIMEOUT(m_two->core.cloud().needsPassword(), quickly);
        QCOMPARE(find<QLabel>(m_two->window(), "safeState")->text(), "New password"_s);

        // Later, from the menu of the safe.
        auto *menu = m_two->window().findChild<QMenu *>("safeMenu"_s);
        menu->popup({});
        menu->findChild<QAction *>("synchronizeAction"_s)->trigger();
        menu->close();
        QVERIFY(m_two->beside("cloudPasswordDialog"));
        answer(newPassword);
        QTRY_COMPARE_WITH_TIMEOUT(m_two->state(), State::Synchronised, quickly);
        QVERIFY(!m_two->beside("cloudPasswordDialog"));
        QVERIFY(m_two->core.currentSafe()->isPassword(newPassword));
        QVERIFY(m_two->item(id));
    }

    void theListOfSafesIsAboveWhatBlocksTheWindow()
    {
        Theme theme;
        CloudDesk desk(m_one->core, theme);
        QWidget main;
        desk.setMain(&main);
        QDialog wizard(&main);
        wizard.setModal(true);
        main.show();
        wizard.show();
        desk.openImport();
        QVERIFY(Computer::shown(wizard, "cloudImportDialog"));
    }

    void turningOffAsksWhatBecomesOfTheCopy_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("isOn");
        QTest::addColumn<bool>("isThere");
        QTest::newRow("keep") << 0 << false << true;
        QTest::newRow("remove") << 1 << false << false;
        QTest::newRow("cancel") << 2 << true << true;
    }
    void turningOffAsksWhatBecomesOfTheCopy()
    {
        QFETCH(int, answer);
        QVERIFY(m_one->core.createSafe("Work"_s, testPassword, {}));
        Theme theme;
        QWidget host;
        QStringList asked;
        CloudPanel panel(
            {m_one->core.cloud(), m_one->core.cloudFolders(), m_one->core.knownSafes(),
             [this] { return m_one->core.currentSafe()->folder(); },
             [&](const Question &question) {
                 asked.append(question.title);
                 return answer;
             },
             [this](QWidget *, const QString &) { return m_one->core.currentSafe()->folder(); }},
            theme, &host);
        host.show();
        auto *place = find<QComboBox>(panel, "cloudPlace");
        QTRY_COMPARE_WITH_TIMEOUT(place->count(), 1, quickly);
        // A folder that would make the safe a copy of itself is refused in words.
        find<QAbstractButton>(panel, "otherFolderButton")->click();
        QTRY_COMPARE_WITH_TIMEOUT(place->count(), 2, quickly);
        auto *toggle = find<QAbstractButton>(panel, "cloudToggle");
        toggle->click();
        QTRY_VERIFY_WITH_TIMEOUT(
            find<QLabel>(panel, "cloudFault")->text().contains("part of the safe"_s), quickly);
        QVERIFY(!toggle->isChecked());

        place->setCurrentIndex(place->findData(cloud()));
        toggle->click();
        QTRY_COMPARE_WITH_TIMEOUT(m_one->state(), State::Synchronised, quickly);
        QVERIFY(find<QLabel>(panel, "cloudFault")->text().isEmpty());
        const QString mirror = m_one->core.cloud().status().mirrorFolder;
        toggle->click();
        QCOMPARE(asked, QStringList{"Stop synchronising “Work”?"_s});
        QTEST(m_one->core.cloud().status().isOn(), "isOn");
        QTEST(toggle->isChecked(), "isOn");
        QFETCH(bool, isThere);
        QTRY_COMPARE_WITH_TIMEOUT(QFileInfo::exists(mirror), isThere, quickly);
    }
};

QTEST_MAIN(TestCloud)
#include "tst_cloud.moc"
