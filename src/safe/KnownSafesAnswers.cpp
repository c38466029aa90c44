// What has to wait until the drive of a safe has answered.

#include "KnownSafes.h"

#include "SafeDescriptionFile.h"

void KnownSafes::lookLater(const QString &folder, const std::function<void(const SafeLook &)> &take)
{
    const auto look = std::make_shared<SafeLook>();
    m_work.run([files = m_environment.files, folder, look] { *look = lookAtSafe(*files, folder); },
               [this, folder, look, take] {
                   m_facts.learn(folder, look->canonical);
                   m_looks.learn(folder, *look);
                   take(*look);
               });
}

void KnownSafes::add(const QString &folder, const TellFound &tell)
{
    lookLater(folder,
              [this, folder, tell](const SafeLook &look) { tell(takeAdded(folder, look)); });
}

KnownSafes::Found KnownSafes::takeAdded(const QString &folder, const SafeLook &look)
{
    if (!look.isHere())
        return look.place == SafePlace::NoSafe ? Found::NoSafe : Found::NotThere;
    const bool known = !listed(folder).isEmpty();
    remember(folder);
    return known ? Found::KnownAlready : Found::Taken;
}

void KnownSafes::locate(const QString &goneFolder, const QString &folder, const TellFound &tell)
{
    lookLater(folder, [this, goneFolder, folder, tell](const SafeLook &look) {
        tell(takeLocated(goneFolder, folder, look));
    });
}

KnownSafes::Found KnownSafes::takeLocated(const QString &goneFolder, const QString &folder,
                                          const SafeLook &look)
{
    if (!look.isHere())
        return look.place == SafePlace::NoSafe ? Found::NoSafe : Found::NotThere;
    const qint64 created = m_facts.of(goneFolder).created;
    // Of a safe that was not opened since times were noted nothing is known that could be compared.
    if (created != 0 && created != look.description->created)
        return Found::AnotherSafe;
    m_facts.move(goneFolder, folder);
    dropFromList(goneFolder);
    remember(folder);
    return Found::Taken;
}

void KnownSafes::rename(const QString &folder, const QString &name,
                        const std::shared_ptr<GPMSafe> &current, const TellDone &tell)
{
    // It writes the description, too.
    if (current && current->isChangingPassword()) {
        tell(false);
        return;
    }
    const auto done = std::make_shared<bool>(false);
    const QString former = current ? current->name() : QString();
    std::function<void()> job;
    if (current) {
        // Behind a save that is under way, which has the old name.
        const QFuture<bool> written = current->renameAsync(name);
        job = [written, done] { *done = written.result(); };
    } else {
        job = [files = m_environment.files, folder, name, done] {
            // What else the description says is kept as it is by now.
            std::optional<SafeDescription> description = readDescription(*files, folder);
            if (!description)
                return;
            description->name = name;
            *done = writeDescription(*files, folder, description->toJson());
        };
    }
    m_work.run(job, [this, folder, name, former, current, done, tell] {
        if (*done)
            noteName(folder, name);
        else if (current && current->name() == name)
            current->setName(former);
        tell(*done);
    });
}

void KnownSafes::noteName(const QString &folder, const QString &name)
{
    m_facts.change(folder, [&name](SafeFact &fact) { fact.name = name; });
    if (const SafeLook *last = m_looks.at(folder); last && last->description) {
        SafeLook now = *last;
        now.description->name = name;
        m_looks.learn(folder, now);
    }
    tell();
}
