#include "qnodrixmessagebox.h"
#include "qnodrixmessagebox_p.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpacerItem>

#include <algorithm>
#include <iterator>

namespace NdxComMessages {

namespace {

constexpr auto Accept = QMessageBox::AcceptRole;
constexpr auto Reject = QMessageBox::RejectRole;
constexpr auto None = QMessageBox::NoRole;

// The presentations. Each outcome names the buttons that are remembered; any
// other end of the box (another button, Escape, the window closed without a
// click) falls through to "otherwise". The fall-throughs are what the
// applications were written against: do not "fix" them.
constexpr BoxShape presentations[] = {
    // Question
    BoxShape(QMessageBox::Question)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), Accept, QMessageBox::Yes)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), Reject)
        .otherwise(QMessageBox::No),
    // Warning
    BoxShape(QMessageBox::Warning)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), Accept, QMessageBox::Yes)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), Reject)
        .otherwise(QMessageBox::No),
    // YesNoIgnore
    BoxShape(QMessageBox::Warning)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), Accept, QMessageBox::Yes)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), Reject, QMessageBox::No)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Ignora"), Reject)
        .otherwise(QMessageBox::Ignore),
    // ResizeScs: both buttons 140 pixels wide.
    BoxShape(QMessageBox::Warning)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "ADATTA\nAcquisizione SCS"), None,
                QMessageBox::Apply)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "ANNULLA\nModifica"), None)
        .buttonWidth(140)
        .otherwise(QMessageBox::Abort),
    // WarningClose
    BoxShape(QMessageBox::Warning).button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Chiudi"), Accept),
    // CriticalClose
    BoxShape(QMessageBox::Critical)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Chiudi"), Accept),
    // WarningOk
    BoxShape(QMessageBox::Warning).button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Ok"), Accept),
    // WarningCloseHelp
    BoxShape(QMessageBox::Warning)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Dettagli"), None, QMessageBox::Help)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Chiudi"), None)
        .otherwise(QMessageBox::Ok),
    // InformationClose
    BoxShape(QMessageBox::Information)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Chiudi"), Accept),
    // InformationYesNoHelp: "Si" is the default, yet an unanswered box says No.
    BoxShape(QMessageBox::Information)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Dettagli"), None, QMessageBox::Help)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), None, QMessageBox::Yes)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), None)
        .otherwise(QMessageBox::No),
    // YesNoNewName: an unanswered box reports the outcome of "Salva con nome".
    BoxShape(QMessageBox::Warning)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), Accept, QMessageBox::Yes)
        .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), Reject, QMessageBox::No)
        .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Salva con nome"), Reject)
        .otherwise(QMessageBox::Ignore),
};
static_assert(std::size(presentations) == static_cast<size_t>(Presentation::YesNoNewName) + 1,
              "one presentation for each value of Presentation, in its order");

} // namespace

const BoxShape &presentationShape(Presentation presentation)
{
    return presentations[static_cast<int>(presentation)];
}

StandardButton runBox(const BoxShape &layout, const QString &text)
{
    // The title is the plain product name, never translated.
    QMessageBox box(layout.icon, QStringLiteral("Nodrix"), text, QMessageBox::NoButton, nullptr,
                    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    // The applications' resources provide the icon; without it the box simply
    // has none.
    box.setWindowIcon(QIcon(QStringLiteral(":/Nodrix/Resources/Nodrix.PNG")));
    // The texts are plain; what fills them comes from files and other
    // workstations and must not be read as markup.
    box.setTextFormat(Qt::PlainText);

    if (layout.minimumBoxWidth > 0) {
        // A zero-high spacer row below the contents keeps long texts from
        // squeezing the box.
        if (auto *grid = qobject_cast<QGridLayout *>(box.layout())) {
            grid->addItem(new QSpacerItem(layout.minimumBoxWidth, 0, QSizePolicy::Minimum,
                                          QSizePolicy::Expanding),
                          grid->rowCount(), 0, 1, grid->columnCount());
        }
    }

    QPushButton *added[3] = {nullptr, nullptr, nullptr};
    for (int i = 0; i < layout.buttonCount; ++i) {
        const QString label = QNodrixMessageBox::tr(layout.buttons[i].text);
        added[i] = box.addButton(label, layout.buttons[i].role);
        if (layout.fixedButtonWidth > 0) {
            // The fixed width belongs to the Italian labels, which keep it
            // whatever the style; a translation that needs more widens its
            // button rather than being cut.
            const bool translated = label != QString::fromUtf8(layout.buttons[i].text);
            added[i]->setFixedWidth(
                translated ? qMax(layout.fixedButtonWidth, added[i]->sizeHint().width())
                           : layout.fixedButtonWidth);
        }
    }
    if (layout.defaultIndex >= 0)
        box.setDefaultButton(added[layout.defaultIndex]);

    box.exec();

    // Decide by identity, never by position: Qt lays buttons out by role.
    const QAbstractButton *clicked = box.clickedButton();
    for (int i = 0; clicked && i < layout.buttonCount; ++i) {
        if (clicked == added[i] && layout.buttons[i].outcome != QMessageBox::NoButton)
            return layout.buttons[i].outcome;
    }
    return layout.fallThrough;
}

void showStandardBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                     const QString &text)
{
    // What QMessageBox's static functions build, with the text format set:
    // they leave it to guess, and a '<' in a file name would make it rich text.
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(box.addButton(QMessageBox::Ok));
    box.exec();
}

QString fillText(const char *source, const QStringList &arguments)
{
    QStringList shown;
    shown.reserve(arguments.size());
    for (const QString &argument : arguments)
        shown << plainArgument(argument);
    return fillArguments(QNodrixMessageBox::tr(source), shown);
}

StandardButton showAdvisor(Presentation presentation, const QString &text)
{
    QNodrixMessageBox box;
    box.setMsg(text);
    switch (presentation) {
    case Presentation::Question:
        return box.execQuestion();
    case Presentation::Warning:
        return box.execWarning();
    case Presentation::YesNoIgnore:
        return box.execYesNoIgnore();
    case Presentation::ResizeScs:
        return box.execResizeScs();
    case Presentation::WarningClose:
        box.execWarningClose();
        break;
    case Presentation::CriticalClose:
        box.execCriticalClose();
        break;
    case Presentation::WarningOk:
        box.execWarningOk();
        break;
    case Presentation::WarningCloseHelp:
        return box.execWarningCloseHelp();
    case Presentation::InformationClose:
        box.execInformationClose();
        break;
    case Presentation::InformationYesNoHelp:
        return box.execInformationYesNoHelp();
    case Presentation::YesNoNewName:
        return box.execYesNoNewName();
    }
    return QMessageBox::NoButton;
}

const AdvisorCase *findCase(const AdvisorCase *table, int count, int value)
{
    for (int i = 0; i < count; ++i) {
        if (table[i].value == value)
            return &table[i];
    }
    qCWarning(lcNdxComMessages) << "advisory value" << value << "has no text: nothing is shown";
    return nullptr;
}

StandardButton showCase(const AdvisorCase &advisorCase, const QStringList &arguments)
{
    return showAdvisor(advisorCase.presentation, fillText(advisorCase.text, arguments));
}

OverrideCursor::OverrideCursor(Qt::CursorShape shape)
{
    QApplication::setOverrideCursor(QCursor(shape));
}

OverrideCursor::~OverrideCursor()
{
    QApplication::restoreOverrideCursor();
}

} // namespace NdxComMessages

using namespace NdxComMessages;

QNodrixMessageBox::QNodrixMessageBox(QWidget *parent)
    : QMessageBox(parent)
    , m_pParent(parent)
{ }

QNodrixMessageBox::QNodrixMessageBox(QString msg, QWidget *parent)
    : QMessageBox(parent)
    , m_sMsg(msg)
    , m_pParent(parent)
{ }

QNodrixMessageBox::~QNodrixMessageBox() = default;

void QNodrixMessageBox::setMsg(QString msg)
{
    m_sMsg = msg;
}

QMessageBox::StandardButton QNodrixMessageBox::execQuestion()
{
    return runBox(presentationShape(Presentation::Question), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execWarning()
{
    return runBox(presentationShape(Presentation::Warning), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execYesNoIgnore()
{
    return runBox(presentationShape(Presentation::YesNoIgnore), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execResizeScs()
{
    return runBox(presentationShape(Presentation::ResizeScs), m_sMsg);
}

void QNodrixMessageBox::execWarningClose()
{
    runBox(presentationShape(Presentation::WarningClose), m_sMsg);
}

void QNodrixMessageBox::execCriticalClose()
{
    runBox(presentationShape(Presentation::CriticalClose), m_sMsg);
}

void QNodrixMessageBox::execWarningOk()
{
    runBox(presentationShape(Presentation::WarningOk), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execWarningCloseHelp()
{
    return runBox(presentationShape(Presentation::WarningCloseHelp), m_sMsg);
}

void QNodrixMessageBox::execInformationClose()
{
    runBox(presentationShape(Presentation::InformationClose), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execInformationYesNoHelp()
{
    return runBox(presentationShape(Presentation::InformationYesNoHelp), m_sMsg);
}

QMessageBox::StandardButton QNodrixMessageBox::execYesNoNewName()
{
    return runBox(presentationShape(Presentation::YesNoNewName), m_sMsg);
}

// The diagnostic reports use the arrow cursor while they are open; the
// advisories use the pointing hand. The two differ on purpose.

namespace {

// A report: one of Qt's standard boxes over the active window, OK only.
void showReport(QMessageBox::Icon icon, const QString &title, const QString &text)
{
    OverrideCursor cursor(Qt::ArrowCursor);
    showStandardBox(icon, QApplication::activeWindow(), title, text);
}

QString classFunctionMessage(const QString &sClass, const QString &sFunction,
                             const QString &sMessage)
{
    return fillArguments(QNodrixMessageBox::tr("Classe:\t%1\nFunzione:\t%2\n\nMessaggio:\t%3\n"),
                         {plainArgument(sClass), plainArgument(sFunction),
                          plainArgument(sMessage, ArgumentLines::LineBreaksKept)});
}

} // namespace

void QNodrixMessageBox::ShowErrorMessage(QString sClass, int nVersion, int nLoadedVersion,
                                         QString sFunction, QString sMessage)
{
    const QString text = fillArguments(
        tr("Classe:\t%1\nVersione:\t%2\nVersione caricata:\t%3\nFunzione:\t%4\n\n"
           "Messaggio:\t%5\n"),
        {plainArgument(sClass), QString::number(nVersion), QString::number(nLoadedVersion),
         plainArgument(sFunction), plainArgument(sMessage, ArgumentLines::LineBreaksKept)});
    showReport(QMessageBox::Critical, tr("Errore"), text);
}

void QNodrixMessageBox::ShowErrorMessage(QString sClass, QString sFunction, QString sMessage)
{
    showReport(QMessageBox::Critical, tr("Errore"),
               classFunctionMessage(sClass, sFunction, sMessage));
}

void QNodrixMessageBox::ShowWarningMessage(QString sClass, QString sFunction, QString sMessage)
{
    showReport(QMessageBox::Warning, tr("Attenzione"),
               classFunctionMessage(sClass, sFunction, sMessage));
}

void QNodrixMessageBox::ShowInfoMessage(QString sMessage)
{
    showReport(QMessageBox::Information, tr("Informazione"),
               fillArguments(tr("%1\n"), {plainArgument(sMessage, ArgumentLines::LineBreaksKept)}));
}

void QNodrixMessageBox::execApplAdvisor(enApplAdvisor eType, QString sArg, unsigned int uArg)
{
    Q_UNUSED(uArg)
    if (eType != eApplAdvisor_PlatformTooOld)
        return;
    // The blanks before the line breaks and before "!" belong to the text.
    const QString text = tr("Attenzione:\nquesto software macchina richiede sia installata \n"
                            "la Piattaforma Nodrix versione %1 o superiore \n"
                            "Non è possibile continuare senza aggiornare la Piattaforma !");
    showAdvisor(Presentation::WarningClose, fillArguments(text, {plainArgument(sArg)}));
}
