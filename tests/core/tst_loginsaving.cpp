#include "../Text.h"
#include "LoginSaving.h"
#include "PMLogin.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString caller = "{1}"_s;
const QString password = "pw"_s;

QJsonObject typed(const char *site, const char *user, const char *secret)
{
    return {{"title"_s, "The shop"_s},
            {"url"_s, QLatin1String(site)},
            {"login"_s, QLatin1String(user)},
            {"password"_s, QLatin1String(secret)}};
}

QJsonObject capture(int id)
{
    return {{"captureId"_s, QString::number(id)}};
}

QJsonObject submitted(int id, const QJsonObject &login)
{
    QJsonObject payload = capture(id);
    payload.insert("login"_s, login);
    return payload;
}

const char *const shop = "https://shop.example/in";

} // namespace

class TestLoginSaving : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<GPMSafe> m_safe;
    std::unique_ptr<ItemChanges> m_items;
    std::unique_ptr<PageLogins> m_pages;
    std::unique_ptr<LoginSaving> m_saving;
    QDateTime m_now = QDateTime::currentDateTimeUtc();

    QString addLogin(const char *user, const char *secret)
    {
        auto login = std::make_unique<PMLogin>();
        login->setTitle("Shop"_s);
        login->setUrl("https://shop.example"_s);
        login->setLogin(QLatin1String(user));
        login->setPassword(QLatin1String(secret));
        return m_items->add(std::move(login))->id();
    }
    void submit(int id, const QJsonObject &login)
    {
        m_saving->keepSubmitted(caller, submitted(id, login));
    }
    void offer(const char *site, const char *user, const char *secret)
    {
        m_saving->saveLogin(caller, typed(site, user, secret));
    }
    QString offered() const
    {
        const LoginOffer *current = m_saving->offer();
        if (!current)
            return "none"_s;
        static const char *const states[] = {"locked", "decided", "known"};
        return QLatin1String(states[current->state]) + QLatin1Char(' ') + current->request.host() +
               QLatin1Char(' ') + current->request.login.password;
    }
    /// What the safe holds when it is read anew from the disk.
    QStringList stored() const
    {
        GPMSafe safe;
        QStringList lines;
        if (!safe.open(m_safe->folder()) || !safe.unlock(password))
            return {"does not open"_s};
        for (const PMListItem *item : safe.items()) {
            const auto *login = qobject_cast<const PMLogin *>(item);
            lines.append(QStringList{login->title(), login->url(), login->login(),
                                     login->password(), login->secondaryText()}
                             .join(QLatin1Char('|')));
        }
        lines.sort();
        return lines;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_safe = std::make_shared<GPMSafe>();
        const QString folder = m_folder->filePath("safe"_s);
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(m_safe->init(folder, password, "Mine"_s, {}));
        m_items = std::make_unique<ItemChanges>([this] { return m_safe; });
        m_pages = std::make_unique<PageLogins>();
        m_pages->setSafe(m_safe);
        m_saving = std::make_unique<LoginSaving>([this] { return m_safe; }, *m_items, *m_pages,
                                                 m_folder->filePath("sites.json"_s),
                                                 [this] { return m_now; });
    }

    // Reported, and then accepted, dropped, or too late.
    void submissions()
    {
        submit(1, typed(shop, "ana", "one"));
        QCOMPARE(offered(), "none"_s);
        m_saving->saveLogin("{2}"_s, capture(1)); // not the one that reported it
        QCOMPARE(offered(), "none"_s);
        QJsonObject accepted = capture(1);
        accepted.insert("posy"_s, 7);
        accepted.insert("width"_s, 800);
        m_saving->saveLogin(caller, accepted);
        QCOMPARE(offered(), "decided shop.example one"_s);
        QCOMPARE(m_saving->offer()->request.place, QRect(0, 7, 800, 0));
        m_saving->decline();
        m_saving->saveLogin(caller, capture(1));
        QCOMPARE(offered(), "none"_s);

        submit(2, typed(shop, "ana", "two"));
        m_saving->dropSubmitted(caller, capture(2));
        m_saving->saveLogin(caller, capture(2));
        submit(3, typed(shop, "ana", "three"));
        m_now = m_now.addSecs(61);
        m_saving->saveLogin(caller, capture(3));
        for (int id = 10; id < 19; ++id)
            submit(id, typed(shop, "ana", "many"));
        m_saving->saveLogin(caller, capture(10)); // the first of nine
        QCOMPARE(offered(), "none"_s);
        submit(20, typed(shop, "ana", "locked"));
        m_saving->clear();
        m_saving->saveLogin(caller, capture(20));
        QCOMPARE(offered(), "none"_s);
    }

    void oneOfferASite()
    {
        QSignalSpy changed(m_saving.get(), &LoginSaving::offerChanged);
        offer(shop, "ana", "one");
        for (int i = 0; i < 20; ++i)
            offer("https://bank.example/", "ana", QByteArray::number(i).constData());
        QCOMPARE(changed.count(), 1);
        offer("https://www.shop.example/", "ana", "two");
        QCOMPARE(offered(), "decided www.shop.example two"_s);
        m_saving->decline();
        QCOMPARE(offered(), "decided bank.example 19"_s);
        m_saving->decline();
        QCOMPARE(offered(), "none"_s);
        offer("https://bank.example/", "ana", "19"); // declined
        QCOMPARE(offered(), "none"_s);
        for (const char *site : {"https://a.example", "https://b.example", "https://c.example",
                                 "https://d.example", "https://e.example", "https://f.example"})
            offer(site, "ana", "x");
        for (int left = LoginSaving::mostOffers; left > 0; --left)
            m_saving->decline();
        QVERIFY(!m_saving->offer());
    }

    void excludedSites()
    {
        offer(shop, "ana", "one");
        QVERIFY(m_saving->exclude());
        QVERIFY(!m_saving->offer());
        offer("https://my.shop.example", "bob", "two");
        submit(1, typed(shop, "bob", "two"));
        QVERIFY(m_saving->includeAgain("shop.example"_s));
        m_saving->saveLogin(caller, capture(1)); // was not even kept
        QVERIFY(!m_saving->offer());
        offer(shop, "bob", "two");
        QVERIFY(m_saving->offer());
    }

    void adds()
    {
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        QSignalSpy icon(m_saving.get(), &LoginSaving::siteIconWanted);
        QTest::ignoreMessage(QtDebugMsg,
                             "Try favicon download: \"https://shop.example/favicon.ico\"");
        offer(shop, "ana", "one");
        QVERIFY(m_saving->save({{}, {}, "ana"_s, "one"_s}));
        QVERIFY(done.wait());
        QCOMPARE(stored(), QStringList{"The shop|https://shop.example/in|ana|one|ana"_s});
        QCOMPARE(icon.count(), 1);
        QCOMPARE(icon.at(0).at(0).toString(), "shop.example"_s);
        offer(shop, "ana", "one");
        QVERIFY(!m_saving->offer());
    }

    void updatesTheChosenLogin()
    {
        const QString ana = addLogin("ana", "one");
        const QString bob = addLogin("bob", "two");
        offer(shop, "", "new");
        QString title;
        QMap<QString, QString> candidates;
        m_saving->fillSaveLoginParams(title, candidates);
        QCOMPARE(title, "The shop"_s);
        QCOMPARE(candidates.values(), m_saving->offer()->decision.candidates.values());
        QCOMPARE(candidates.value(bob), "bob"_s);
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        QVERIFY(m_saving->save({bob, {}, {}, "new"_s}));
        QVERIFY(done.wait());
        const QStringList now = stored();
        QCOMPARE(now.size(), 3);
        QCOMPARE(now.at(1), "Shop|https://shop.example|ana|one|"_s);
        QCOMPARE(now.at(2), "Shop|https://shop.example|bob|new|bob"_s);
        // What it was lies in the trash.
        QVERIFY(now.at(0).startsWith(QLatin1String("Shop (former password, until ")));
        QVERIFY(now.at(0).endsWith(QLatin1String("|bob|two|")));
        QCOMPARE(m_items->trashedIds().size(), 1);

        offer(shop, "ana", "newer");
        m_items->setDeleted({ana}, true);
        QVERIFY(!m_saving->save({ana, {}, {}, "newer"_s}));
        QCOMPARE(m_saving->offer()->decision.action, SaveLoginOffer::Add);
    }

    void aFormerPasswordTakenOutOfTheTrashIsTheUsersOwn()
    {
        const QString ana = addLogin("ana", "0");
        m_safe->item(ana)->setRefs({"attachment"_s});
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        const auto update = [&](int password) {
            const QByteArray text = QByteArray::number(password);
            offer(shop, "ana", text);
            return m_saving->save({ana, {}, {}, QString::fromLatin1(text)}) && done.wait();
        };
        QVERIFY(update(1));
        const QStringList own = m_items->trashedIds();
        QCOMPARE(own.size(), 1);
        // Else deleting the login for good would leave its attachment behind.
        QCOMPARE(m_safe->item(own.first())->refs(), QStringList());
        m_items->setDeleted(own, false);
        m_items->setDeleted(own, true);
        for (int i = 2; i <= ItemChanges::mostFormer + 3; ++i)
            QVERIFY(update(i));
        QVERIFY(m_safe->item(own.first()));
        QCOMPARE(m_items->trashedIds().size(), ItemChanges::mostFormer + 1);
    }

    void formerPasswordsDoNotFillTheSafe()
    {
        const QString ana = addLogin("ana", "0");
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        const auto update = [&](int password) {
            const QByteArray text = QByteArray::number(password);
            offer(shop, "ana", text);
            m_now = m_now.addSecs(60);
            return m_saving->save({ana, {}, {}, QString::fromLatin1(text)}) && done.wait();
        };
        for (int i = 1; i <= ItemChanges::mostFormer + 2; ++i)
            QVERIFY(update(i));
        // The same password with another name for the user is no loss.
        offer(shop, "eve", "7");
        QVERIFY(m_saving->save({ana, {}, "eve"_s, "7"_s}));
        QVERIFY(done.wait());
        QStringList kept;
        for (const QString &id : m_items->trashedIds())
            kept.append(qobject_cast<PMLogin *>(m_safe->item(id))->password());
        kept.sort();
        QCOMPARE(kept, (QStringList{"2"_s, "3"_s, "4"_s, "5"_s, "6"_s}));
    }

    void aSiteThatIsDeclinedOftenIsQuiet()
    {
        for (int i = 1; i <= LoginSaving::mostDeclinedOfSite; ++i) {
            offer("https://www.shop.example", "ana", QByteArray::number(i));
            QVERIFY(m_saving->offer());
            QCOMPARE(m_saving->offer()->isLast, i == LoginSaving::mostDeclinedOfSite);
            m_saving->decline();
        }
        offer(shop, "ana", "new");
        QCOMPARE(offered(), "none"_s);
        offer("https://other.example", "ana", "new");
        QCOMPARE(offered(), "decided other.example new"_s);
        m_saving->clear();
        offer(shop, "ana", "new");
        QCOMPARE(offered(), "decided shop.example new"_s);
    }

    void offersWhileOneIsBeingWritten()
    {
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        offer(shop, "ana", "one");
        QVERIFY(m_saving->save({{}, {}, "ana"_s, "one"_s}));
        offer(shop, "bob", "w");
        offer(shop, "bob", "x");
        QCOMPARE(offered(), "decided shop.example one"_s);
        QVERIFY(m_saving->isSaving());
        QVERIFY(done.wait());
        QCOMPARE(offered(), "decided shop.example x"_s);
        QCOMPARE(stored().size(), 1);
        m_saving->decline();
        QVERIFY(!m_saving->offer());
        QCOMPARE(done.count(), 1);
    }

    void aLoginThatGoesWhileItIsBeingWritten()
    {
        offer(shop, "ana", "one");
        QVERIFY(m_saving->save({{}, {}, "ana"_s, "one"_s}));
        QSignalSpy changed(m_saving.get(), &LoginSaving::offerChanged);
        const QStringList all{m_safe->items().front()->id()};
        m_items->setDeleted(all, true);
        m_items->purge(all);
        QVERIFY(changed.wait());
        QVERIFY(!m_saving->isSaving());
        QCOMPARE(offered(), "decided shop.example one"_s);
    }

    void whatWasFilledIsNotOffered()
    {
        const QString id = addLogin("ana", "one");
        m_saving->noteFilled(id);
        offer(shop, "Ana M.", "one"); // what the page calls her
        QVERIFY(!m_saving->offer());
        m_now = m_now.addSecs(600);
        offer(shop, "Ana M.", "one");
        QVERIFY(m_saving->offer());
    }

    void aLockedSafe()
    {
        addLogin("ana", "one");
        m_safe->lock();
        offer(shop, "ana", "one");
        offer("https://bank.example", "ana", "two");
        QCOMPARE(offered(), "locked shop.example one"_s);
        m_now = m_now.addSecs(59);
        m_saving->setUnlocking(true);
        m_now = m_now.addSecs(30);
        QVERIFY(m_safe->unlock(password));
        m_saving->decideAgain();
        QCOMPARE(offered(), "known shop.example one"_s);
        m_saving->decline();
        QCOMPARE(offered(), "decided bank.example two"_s);

        m_saving->clear();
        m_safe->lock();
        offer(shop, "ana", "late");
        m_now = m_now.addSecs(61);
        m_saving->setUnlocking(false); // looks at the time
        QVERIFY(!m_saving->offer());
        offer(shop, "ana", "late");
        m_now = m_now.addSecs(-3600);
        m_saving->setUnlocking(false);
        QVERIFY(!m_saving->offer());
    }

    void aSaveThatFailsKeepsTheOffer()
    {
        offer(shop, "ana", "one");
        QSignalSpy failed(m_saving.get(), &LoginSaving::saveFailed);
        QSignalSpy done(m_saving.get(), &LoginSaving::saved);
        const QString content = m_safe->folder() + "/content"_s;
        QVERIFY(QDir().rename(content, content + ".away"_s));
        QFile inTheWay(content);
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        const LoginChoice choice{{}, {}, "ana"_s, "one"_s};
        QVERIFY(m_saving->save(choice));
        QVERIFY(failed.wait());
        QVERIFY(m_saving->offer());
        QVERIFY(inTheWay.remove());
        QVERIFY(QDir().rename(content + ".away"_s, content));
        QVERIFY(m_saving->save(choice));
        QVERIFY(done.wait());
        QCOMPARE(stored().size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestLoginSaving)
#include "tst_loginsaving.moc"
