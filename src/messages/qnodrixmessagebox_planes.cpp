#include "qnodrixmessagebox.h"
#include "qnodrixmessagebox_p.h"

// The advisors of the plane editors: the free command plane, the scheme's
// 4-feed zones, the skeleton's borders, the automatic elaboration of the
// project, the command plane and the body planes.

using namespace NdxComMessages;

namespace {

constexpr auto Accept = QMessageBox::AcceptRole;
constexpr auto Reject = QMessageBox::RejectRole;

// The free command plane asks its questions in information boxes of its own.
// Each remembered button carries its answer; every other end of the box
// ("Annulla", Escape, the window closed) gives the "otherwise" outcome.
constexpr BoxShape continueOrCancel
    = BoxShape(QMessageBox::Information)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Continua"), Accept, QMessageBox::Yes)
          .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Annulla"), Reject)
          .otherwise(QMessageBox::Ignore);
// "OK" answers No, not Yes, on purpose: the applications were written
// against this pairing.
constexpr BoxShape okOrCancel
    = BoxShape(QMessageBox::Information)
          .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "OK"), QMessageBox::YesRole,
                         QMessageBox::No)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Annulla"), Reject)
          .otherwise(QMessageBox::Ignore);
constexpr BoxShape saveExitOrCancel
    = BoxShape(QMessageBox::Information)
          .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Salva"), Accept, QMessageBox::Yes)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Esci"), QMessageBox::NoRole,
                  QMessageBox::No)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Annulla"), Reject)
          .otherwise(QMessageBox::Ignore);
constexpr BoxShape yesOrNo
    = BoxShape(QMessageBox::Information)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Si"), Accept, QMessageBox::Yes)
          .defaultButton(QT_TRANSLATE_NOOP("QNodrixMessageBox", "No"), Reject)
          .otherwise(QMessageBox::No);

// A case of the free command plane: its own box, or nullptr for a plain
// warning with "Chiudi".
struct FreeCmdCase
{
    int value;
    const char *text;
    const BoxShape *box;
};

const FreeCmdCase freeCmdCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Selezionando 'Continua' si renderà possibile\n"
                       "entrare in modalità 'PIANO COMANDI LIBERO' !\n"
                       "Si avverte che tale modalità è consigliata\n"
                       "ai soli UTENTI ESPERTI !!!"),
     &continueOrCancel},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Stai entrando sul 'Piano Comandi Manuale' \n"
                       "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                       "le modifiche fatte al 'Piano Comandi Manuale'\n"
                       "potranno essere recuperate."),
     &okOrCancel},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il 'PIANO COMANDI LIBERO' è stato modificato!.\n"
                       "Vuoi salvare le modifiche fatte ?"),
     &saveExitOrCancel},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Modalità 'PIANO COMANDI LIBERO'\n"
                       "   NON CONFERMATA CON OK ! \n"
                       "Sei sicuro di voler uscire ?"),
     &yesOrNo},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                       "NON sono state applicate ! \n"
                       "Continuando verranno PERSE. Sei sicuro di voler uscire ?"),
     &yesOrNo},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                       "     NON sono state confermate con Ok! \n"
                       "Continuando verranno Perse. Sei sicuro di voler uscire ?"),
     &yesOrNo},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Prima di uscire dalla modalità 'PIANO COMANDI LIBERO'\n"
                       "è necessario completare e chiudere la finestra Report !"),
     nullptr},
    {7,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sono state rilevate modifiche al Setup del progetto !\n"
                       "L'ingresso in modalità Piano Comandi Libero comporta:\n"
                       "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                       "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                       "Vuoi continuare ?"),
     &yesOrNo},
    {8,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile agire sui comandi con il Report attivo!\n"),
     nullptr},
    {9,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "NESSUN comando è stato recuperato.\n"
                       "Uscendo non sarà più possibile alcun recupero.\n"
                       "Sei sicuro di voler uscire ?"),
     &yesOrNo},
    {10,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Per eliminare un comando spostato\n"
                       "è necessario prima annullare lo spostamento!\n"),
     nullptr},
    {11,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                       "L'Acquisizione SCS verrà eliminata !\n"
                       "Vuoi continuare ?"),
     &yesOrNo},
    {12,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sono presenti comandi guidafilo con accessori associati!\n"
                       "non compatibili con quelli già in uso nel progetto\n"
                       "%1\n"
                       "I comandi di questi accessori verranno ignorati !\n"
                       "Vuoi continuare ?"),
     &yesOrNo},
    {13,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel progetto è già presente una asociazione \n"
                       "PAT manuale al colore %1 da importare !\n"
                       "Il colore importato verrà sostituito \n"
                       "con il colore selezionato o con il primo libero !\n"),
     nullptr},
    {14,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel progetto è già presente un PAT manuale con nome %1 !\n"
                       "Il PAT importato verrà rinominato e associato come : %2 !\n"),
     nullptr},
};

const AdvisorCase schemeCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Una zona a 4 cadute deve essere almeno di %1 passi!"),
     Presentation::WarningClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!"),
     Presentation::WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Fra l'ultima zona e la fine disegno ci devono essere almeno %1 passi!"),
     Presentation::WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile inserire una zona sovrapposta alle esistenti!"),
     Presentation::WarningClose},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile aggiungere il passo richiesto alla zona!"),
     Presentation::WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile togliere il passo richiesto alla zona!"),
     Presentation::WarningClose},
};

// The numbering does not follow the order of the texts (4 is the distance
// from the end of the drawing); the editors pass these numbers.
const AdvisorCase skelCases[] = {
    {0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Un Bordo deve essere almeno di %1 passi !"),
     Presentation::WarningClose},
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Fra due bordi ci devono essere almeno %1 passi non bordo !"),
     Presentation::WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile aggiungere il passo richiesto al bordo !"),
     Presentation::WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile togliere il passo richiesto al bordo !"),
     Presentation::WarningClose},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Fra l'ultimo bordo e la fine disegno ci devono essere almeno %1 passi !"),
     Presentation::WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il primo bordo deve partire al passo 1 oppure dopo il passo %1!"),
     Presentation::WarningClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!"),
     Presentation::WarningClose},
};

// 4 sums up the three rules that 5, 6 and 7 report one at a time.
const AdvisorCase elabCases[] = {
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Le modifiche precedentemente apportate al\n"
                       "Piano Comandi verranno Eliminate !!\n"
                       "Vuoi continuare ?"),
     Presentation::Warning},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "L'articolo deve iniziare con un bordo uncini !"),
     Presentation::WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Fili in lavoro non definiti !"),
     Presentation::WarningClose},
    {4,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non è possibile avere\n"
         "  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
         "\n"
         "- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non è possibile avere\n"
         "  entrambi i guidafili associati ad una pinza !\n"
         "\n"
         "- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non è possibile avere\n"
         "  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
         "\n"
         "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
         "il cambio per terminare lo Scarico Maglia."),
     Presentation::WarningClose},
    {5,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere\n"
         "il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
         "\n"
         "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
         "il cambio per terminare lo Scarico Maglia."),
     Presentation::WarningClose},
    {6,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere\n"
         "entrambi i guidafili associati ad una pinza !\n"
         "\n"
         "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
         "il cambio per terminare lo Scarico Maglia."),
     Presentation::WarningClose},
    {7,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere\n"
         "un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
         "\n"
         "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
         "il cambio per terminare lo Scarico Maglia."),
     Presentation::WarningClose},
    {8,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Punto maglia '%1' non identificato nel Pat :\n"
                       "%2"),
     Presentation::WarningClose},
};

const AdvisorCase commandPlaneCases[] = {
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile inserire zone maglie sul passo !"),
     Presentation::WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non ci sono alimentatori %1 attivi nella zona !"),
     Presentation::WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Platò abbassato con uncini attivi al passo %1 !"),
     Presentation::WarningClose},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile inserire il comando platò sul passo !"),
     Presentation::WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è possibile avere la camme rientro parziale uncini\n"
                       " insieme alla camme uscita uncini al passo %1 !"),
     Presentation::WarningClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Passo %1: Platò Motorizzato basso/alto con uncini attivi!"),
     Presentation::WarningClose},
    {7,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sul passo Non è possibile inserire il comando 'Platò Motorizzato!'"),
     Presentation::WarningClose},
    {8,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sul passo Non è possibile inserire il comando 'Stop Espulsore Articolo!'"),
     Presentation::WarningClose},
};

// 8 says "Motor=" and 9 "Motore=": the two labels have always differed.
const AdvisorCase bodyPlaneCases[] = {
    {1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione: Piano Body n. %1\n"
                       "Colore %2 non assegnato"),
     Presentation::WarningClose},
    {2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non sono presenti zone maglia"),
     Presentation::WarningClose},
    {3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non sono presenti zone alimentatori BodyMap"),
     Presentation::WarningClose},
    {4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non sono presenti zone alimentatori BodyShape"),
     Presentation::WarningClose},
    {5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è presente la zona maglie per il passo %1"),
     Presentation::WarningClose},
    {6,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è presente la zona alimentatori BodyMap per il passo %1"),
     Presentation::WarningClose},
    {7,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è presente la zona alimentatori BodyShape per il passo %1"),
     Presentation::WarningClose},
    {8,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Valore di sbilanciamento inferiore al minimo consentito\n"
                       "Motor=%1 Rango=%2 Ago=%3"),
     Presentation::WarningClose},
    {9,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Valore di sbilanciamento superiore al massimo consentito\n"
                       "Motore=%1 Rango=%2 Ago=%3"),
     Presentation::WarningClose},
    {10,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Valore di sbilanciamento inferiore al minimo consentito\n"
                       "Alimentatore=%1 Rango=%2 Ago=%3"),
     Presentation::WarningClose},
    {11,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Valore di sbilanciamento superiore al massimo consentito\n"
                       "Alimentatore=%1 Rango=%2 Ago=%3"),
     Presentation::WarningClose},
};

// Each text uses its arguments from the first on (%1, or %1 and %2, ...).
// Only those are handed over, so that a translation holding a marker its
// source lacks is not filled with an argument the source never shows.
QStringList usedArguments(const char *source, const QStringList &arguments)
{
    int used = 0;
    for (const char *p = source; *p; ++p) {
        if (p[0] == '%' && p[1] >= '1' && p[1] <= '9')
            used = qMax(used, p[1] - '0');
    }
    return arguments.mid(0, used);
}

StandardButton showFilled(const AdvisorCase &advisorCase, const QStringList &arguments)
{
    return showCase(advisorCase, usedArguments(advisorCase.text, arguments));
}

} // namespace

int QNodrixMessageBox::execFreeCmdModeAdvisor(enFreeCmdModeAdvisor eType, QString sArg1,
                                              QString sArg2)
{
    for (const FreeCmdCase &c : freeCmdCases) {
        if (c.value != eType)
            continue;
        const QString text = fillText(c.text, usedArguments(c.text, {sArg1, sArg2}));
        if (!c.box) {
            showAdvisor(Presentation::WarningClose, text);
            return 0;
        }
        return runBox(*c.box, text);
    }
    return -1;
}

void QNodrixMessageBox::execProjectSchemeAdvisor(enSchemeAdvisor eType, QString sArg)
{
    if (const AdvisorCase *c = findCase(schemeCases, eType))
        showFilled(*c, {sArg});
}

void QNodrixMessageBox::execProjectSkelAdvisor(enSkelAdvisor eType, QString sArg)
{
    if (const AdvisorCase *c = findCase(skelCases, eType))
        showFilled(*c, {sArg});
}

QMessageBox::StandardButton QNodrixMessageBox::execProjectElabAdvisor(enProjElabAdvisor eType,
                                                                      QString sArg1, QString sArg2)
{
    const AdvisorCase *c = findCase(elabCases, eType);
    if (!c)
        return No;
    const StandardButton answer = showFilled(*c, {sArg1, sArg2});
    // Only the question has an answer; the warnings report No.
    return c->presentation == Presentation::Warning ? answer : No;
}

void QNodrixMessageBox::execCommandPlaneAdvisor(enCommandPlaneAdvisor eType, QString sArg)
{
    if (const AdvisorCase *c = findCase(commandPlaneCases, eType))
        showFilled(*c, {sArg});
}

int QNodrixMessageBox::execBodyPlaneAdvisor(enBodyPlaneAdvisor eType, int nArg1, int nArg2,
                                            int nArg3)
{
    if (const AdvisorCase *c = findCase(bodyPlaneCases, eType)) {
        showFilled(
            *c,
            {QString::number(nArg1, 10), QString::number(nArg2, 10), QString::number(nArg3, 10)});
    }
    return 0;
}
