#include "lockscan.h"

#include <QtCore/QCoreApplication>

namespace LockScan {

Identity Identity::local()
{
    return Identity {NdxComFileSharing::localComputerName(), NdxComFileSharing::localUserName()};
}

QString path(const QString &folder, const Entry &entry)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + entry.relative
                                             : folder + QLatin1Char('/') + entry.relative;
}

Assessed assess(const Entry &entry, const Identity &identity)
{
    Assessed a;
    if (!entry.readable) {
        a.assessment = Assessment::Unreadable;
        a.reason = entry.whyUnreadable;
        return a;
    }
    const NdxComFileSharing::LockRecord &record = entry.record;
    if (!record.complete) {
        // The library reads it all the same and takes it for another
        // holder's: it stands until someone removes it.
        a.assessment = Assessment::Unreadable;
        a.reason = QStringLiteral("a damaged record, cut short or with impossible lengths");
        return a;
    }
    // The names as the library compares them: exactly, case included.
    const bool sameComputer = record.computer == identity.computer;
    const bool sameUser = sameComputer && record.user == identity.user;
    if (sameComputer) {
        a.processChecked = true;
        a.process = holderProcess(record.pid);
    }
    if (sameUser && record.pid == QCoreApplication::applicationPid()) {
        // Only this very process could hold it: not a leftover.
    } else if (sameComputer && a.process == HolderProcess::Gone) {
        a.assessment = Assessment::Stale;
        a.reason = QStringLiteral("its process no longer runs on this computer");
    } else if (sameUser) {
        a.assessment = Assessment::Stale;
        a.reason = QStringLiteral("this user's lock from another process, which the suite's next "
                                  "open removes as a leftover");
    }
    if (a.assessment == Assessment::Held && a.processChecked) {
        if (a.process == HolderProcess::Running)
            a.reason = QStringLiteral("its process runs on this computer");
        else if (a.process == HolderProcess::Invalid)
            a.reason = QStringLiteral("no valid process id");
    }
    if (!entry.projectExists) {
        if (a.assessment == Assessment::Stale) {
            a.reason += QStringLiteral("; no project beside it");
        } else {
            a.assessment = Assessment::Orphan;
            a.reason = QStringLiteral("no project beside it");
        }
    }
    return a;
}

const char *assessmentName(Assessment assessment)
{
    switch (assessment) {
    case Assessment::Held:
        return "held";
    case Assessment::Stale:
        return "stale";
    case Assessment::Orphan:
        return "orphan";
    case Assessment::Unreadable:
        return "unreadable";
    }
    return "unreadable";
}

} // namespace LockScan
