// The message box's presentations, diagnostic and error reports and the
// project, name, machine-file, size-control and project advisors, for
// `ndxcom show`.

#include "showfamily.h"

#include <QNodrixMessageBox>

#include <QtCore/QDataStream>

namespace {

using M = QNodrixMessageBox;

// Missing arguments read as empty texts and 0, as an application that passes
// nothing would.
QString text(const QStringList &a, int i)
{
    return a.value(i);
}
int number(const QStringList &a, int i)
{
    return a.value(i).toInt();
}
// Versions and flags: decimal, or hexadecimal with 0x.
unsigned int unsignedNumber(const QStringList &a, int i)
{
    return a.value(i).toUInt(nullptr, 0);
}

// Presentations: TEXT is the box's text.
template<typename Show>
ShowFamily::Registrar presentation(const char *name, const char *synopsis, Show show)
{
    return ShowFamily::Registrar("presentation", name, synopsis, [show](int, const QStringList &a) {
        M box(text(a, 0));
        return int(show(box));
    });
}

int none(void (M::*present)(), M &box)
{
    (box.*present)();
    return 0;
}

const ShowFamily::Registrar presentations[] = {
    presentation("question", "[TEXT]  question icon, Si / No (default No)",
                 [](M &b) { return b.execQuestion(); }),
    presentation("warning", "[TEXT]  warning icon, Si / No (default No)",
                 [](M &b) { return b.execWarning(); }),
    presentation("yesnoignore", "[TEXT]  Si / No / Ignora (default Ignora)",
                 [](M &b) { return b.execYesNoIgnore(); }),
    presentation("resizescs", "[TEXT]  ADATTA / ANNULLA, 140 pixels wide",
                 [](M &b) { return b.execResizeScs(); }),
    presentation("warningclose", "[TEXT]  warning icon, Chiudi",
                 [](M &b) { return none(&M::execWarningClose, b); }),
    presentation("criticalclose", "[TEXT]  critical icon, Chiudi",
                 [](M &b) { return none(&M::execCriticalClose, b); }),
    presentation("warningok", "[TEXT]  warning icon, Ok",
                 [](M &b) { return none(&M::execWarningOk, b); }),
    presentation("warningclosehelp", "[TEXT]  Dettagli / Chiudi",
                 [](M &b) { return b.execWarningCloseHelp(); }),
    presentation("informationclose", "[TEXT]  information icon, Chiudi",
                 [](M &b) { return none(&M::execInformationClose, b); }),
    presentation("informationyesnohelp", "[TEXT]  Dettagli / Si / No (default Si)",
                 [](M &b) { return b.execInformationYesNoHelp(); }),
    presentation("yesnonewname", "[TEXT]  Si / No / Salva con nome",
                 [](M &b) { return b.execYesNoNewName(); }),
};

// The stream status execDataStreamErrorRead reports, by name.
QDataStream::Status streamStatus(const QString &name)
{
    const QString n = name.toLower();
    if (n == QLatin1String("readpastend"))
        return QDataStream::ReadPastEnd;
    if (n == QLatin1String("readcorruptdata"))
        return QDataStream::ReadCorruptData;
    if (n == QLatin1String("writefailed"))
        return QDataStream::WriteFailed;
    return QDataStream::Ok;
}

const ShowFamily::Registrar reports[] = {
    {"report", "error", "CLASS FUNCTION MESSAGE  ShowErrorMessage",
     [](int, const QStringList &a) {
         M().ShowErrorMessage(text(a, 0), text(a, 1), text(a, 2));
         return 0;
     }},
    {"report", "errorversion", "CLASS VERSION LOADED FUNCTION MESSAGE  ShowErrorMessage",
     [](int, const QStringList &a) {
         M().ShowErrorMessage(text(a, 0), number(a, 1), number(a, 2), text(a, 3), text(a, 4));
         return 0;
     }},
    {"report", "warning", "CLASS FUNCTION MESSAGE  ShowWarningMessage",
     [](int, const QStringList &a) {
         M().ShowWarningMessage(text(a, 0), text(a, 1), text(a, 2));
         return 0;
     }},
    {"report", "info", "MESSAGE  ShowInfoMessage",
     [](int, const QStringList &a) {
         M().ShowInfoMessage(text(a, 0));
         return 0;
     }},
    {"report", "fileopen", "FILE REASON  execFileOpenError",
     [](int, const QStringList &a) {
         M::execFileOpenError(text(a, 0), text(a, 1));
         return 0;
     }},
    {"report", "fileread", "FILE REASON  execFileReadError",
     [](int, const QStringList &a) {
         M::execFileReadError(text(a, 0), text(a, 1));
         return 0;
     }},
    {"report", "filewrite", "FILE REASON  execFileWriteError",
     [](int, const QStringList &a) {
         M::execFileWriteError(text(a, 0), text(a, 1));
         return 0;
     }},
    {"report", "datastreamfile", "FILE  execDataStreamErrorFile",
     [](int, const QStringList &a) {
         M::execDataStreamErrorFile(text(a, 0));
         return 0;
     }},
    {"report", "datastreamread",
     "CLASS VERSION LOADED [ok|readpastend|readcorruptdata|writefailed]  "
     "execDataStreamErrorRead",
     [](int, const QStringList &a) {
         const QByteArray empty;
         QDataStream stream(empty);
         stream.setStatus(streamStatus(text(a, 3)));
         M::execDataStreamErrorRead(text(a, 0), unsignedNumber(a, 1), unsignedNumber(a, 2), stream);
         return 0;
     }},
    {"report", "datastreamversion", "CLASS VERSION LOADED FUNCTION  execDataStreamErrorVersion",
     [](int, const QStringList &a) {
         M::execDataStreamErrorVersion(text(a, 0), unsignedNumber(a, 1), unsignedNumber(a, 2),
                                       text(a, 3));
         return 0;
     }},
};

const ShowFamily::Registrar advisors[] = {
    {"advisor", "appl", "VALUE [VERSION]  0 = platform too old",
     [](int v, const QStringList &a) {
         M::execApplAdvisor(M::enApplAdvisor(v), text(a, 0), 0);
         return 0;
     }},
    {"advisor", "illegalname", "VALUE [CHARS] [LENGTH]  0-5; others: empty warning",
     [](int v, const QStringList &a) {
         M::execIllegalNameAdvisor(M::enIllegalNameAdvisor(v), text(a, 0), number(a, 1));
         return 0;
     }},
    {"advisor", "filename", "VALUE [CHARS] [LENGTH]  0-1; always No",
     [](int v, const QStringList &a) {
         return int(M::execFileNameAdvisor(M::enFileNameAdvisor(v), text(a, 0), number(a, 1)));
     }},
    {"advisor", "projectdoc", "VALUE  0-2; always No",
     [](int v, const QStringList &a) {
         return int(M::execProjectDocAdvisor(M::enProjectDocAdvisor(v), text(a, 0), number(a, 1)));
     }},
    {"advisor", "modifydata", "VALUE  1-5: Yes or No",
     [](int v, const QStringList &) {
         return int(M::execModifyDataAdvisor(M::enModifyDataAdvisor(v)));
     }},
    {"advisor", "modified", "VALUE  execModified(), modifydata 1; VALUE is ignored",
     [](int, const QStringList &) { return int(M::execModified()); }},
    {"advisor", "machinefile", "VALUE [FILE] [ARG2] [ARG3]  0-6; always 0",
     [](int v, const QStringList &a) {
         return M::execMachineFileAdvisor(M::enMachineFileAdvisor(v), text(a, 0), text(a, 1),
                                          text(a, 2));
     }},
    {"advisor", "machinexml", "VALUE FILE [DETAILS...]  0-1; always No",
     [](int v, const QStringList &a) {
         QStringList details = a.mid(1);
         return int(M::execMachineXmlAdvisor(M::enMachineXmlAdvisor(v), text(a, 0), details));
     }},
    {"advisor", "scs", "VALUE [ZONES]  1-12: Yes/No, Apply/Abort or the value; others -1",
     [](int v, const QStringList &a) { return M::execScsAdvisor(M::enScsAdvisor(v), text(a, 0)); }},
    {"advisor", "createsize", "VALUE [ZONE KIND]  0-13",
     [](int v, const QStringList &a) {
         M::execCreateSizeAdvisor(M::enCreateSizeAdvisor(v), text(a, 0), unsignedNumber(a, 1));
         return 0;
     }},
    {"advisor", "modifyproj", "VALUE [COMMANDS] [FLAGS]  0-1: Help or Ok; others 0",
     [](int v, const QStringList &a) {
         return M::execModifyProjAdvisor(M::enModifyProjAdvisor(v), text(a, 0),
                                         unsignedNumber(a, 1));
     }},
    {"advisor", "protectedmode", "VALUE  0: Help, Yes or No; 1: empty warning",
     [](int v, const QStringList &a) {
         return M::execProtectedModeAdvisor(M::enProtectedModeAdvisor(v), text(a, 0),
                                            unsignedNumber(a, 1));
     }},
};

} // namespace
