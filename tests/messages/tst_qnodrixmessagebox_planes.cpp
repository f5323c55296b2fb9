#include <QNodrixMessageBox>

#include "dialogdriver.h"
#include "markingtranslator.h"
#include "ndxcomtest.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <climits>

using namespace NdxComTest;

using Buttons = QList<QPair<QString, QMessageBox::ButtonRole>>;
Q_DECLARE_METATYPE(NdxComTest::Action)

namespace {

enum class Family { FreeCmd, Scheme, Skel, Elab, CommandPlane, BodyPlane };

// The boxes the advisors of the plane editors show.
enum class Box {
    None, // nothing is shown
    ContinueCancel, // free command plane 0
    OkCancel, // free command plane 1
    SaveExitCancel, // free command plane 2
    YesNo, // the free command plane's "Si"/"No" questions
    WarningClose, // execWarningClose
    WarningYesNo // execWarning
};

struct Layout
{
    QMessageBox::Icon icon;
    Buttons buttons; // in the order of adding
    QString defaultButton;
};

Layout layoutOf(Box box)
{
    const QString si = QStringLiteral("Si"), no = QStringLiteral("No");
    const QString annulla = QStringLiteral("Annulla");
    switch (box) {
    case Box::None:
        break;
    case Box::ContinueCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("Continua"), QMessageBox::AcceptRole},
                 {annulla, QMessageBox::RejectRole}},
                annulla};
    case Box::OkCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("OK"), QMessageBox::YesRole}, {annulla, QMessageBox::RejectRole}},
                QStringLiteral("OK")};
    case Box::SaveExitCancel:
        return {QMessageBox::Information,
                {{QStringLiteral("Salva"), QMessageBox::AcceptRole},
                 {QStringLiteral("Esci"), QMessageBox::NoRole},
                 {annulla, QMessageBox::RejectRole}},
                QStringLiteral("Salva")};
    case Box::YesNo:
        return {QMessageBox::Information,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no};
    case Box::WarningClose:
        return {QMessageBox::Warning, {{QStringLiteral("Chiudi"), QMessageBox::AcceptRole}}, {}};
    case Box::WarningYesNo:
        return {QMessageBox::Warning,
                {{si, QMessageBox::AcceptRole}, {no, QMessageBox::RejectRole}},
                no};
    }
    return {QMessageBox::NoIcon, {}, {}};
}

Buttons sortedByRole(Buttons b)
{
    std::stable_sort(b.begin(), b.end(),
                     [](const auto &x, const auto &y) { return x.second < y.second; });
    return b;
}

// The advisors without a result.
constexpr int kNoResult = INT_MIN;

// Calls one advisor; the body-plane advisor takes its arguments as numbers.
int call(Family family, int value, const QStringList &args)
{
    using M = QNodrixMessageBox;
    switch (family) {
    case Family::FreeCmd:
        return M::execFreeCmdModeAdvisor(M::enFreeCmdModeAdvisor(value), args.value(0),
                                         args.value(1));
    case Family::Scheme:
        M::execProjectSchemeAdvisor(M::enSchemeAdvisor(value), args.value(0));
        return kNoResult;
    case Family::Skel:
        M::execProjectSkelAdvisor(M::enSkelAdvisor(value), args.value(0));
        return kNoResult;
    case Family::Elab:
        return int(
            M::execProjectElabAdvisor(M::enProjElabAdvisor(value), args.value(0), args.value(1)));
    case Family::CommandPlane:
        M::execCommandPlaneAdvisor(M::enCommandPlaneAdvisor(value), args.value(0));
        return kNoResult;
    case Family::BodyPlane:
        return M::execBodyPlaneAdvisor(M::enBodyPlaneAdvisor(value), args.value(0).toInt(),
                                       args.value(1).toInt(), args.value(2).toInt());
    }
    return kNoResult;
}

Action click(const char *text)
{
    return Action::click(QString::fromUtf8(text));
}

} // namespace

Q_DECLARE_METATYPE(Family)
Q_DECLARE_METATYPE(Box)

class tst_QNodrixMessageBoxPlanes : public QObject
{
    Q_OBJECT

private slots:
    void advisor_data();
    void advisor();
    void valuesShowingNothing_data();
    void valuesShowingNothing();
    void overrideCursorUntouched();
    void translatedButRemembered();

private:
    void addColumns();
};

void tst_QNodrixMessageBoxPlanes::addColumns()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<NdxComTest::Action>("action");
    QTest::addColumn<Box>("box");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
}

void tst_QNodrixMessageBoxPlanes::advisor_data()
{
    addColumns();
    const int yes = int(QMessageBox::Yes), no = int(QMessageBox::No),
              ign = int(QMessageBox::Ignore), none = kNoResult;
    Q_UNUSED(none)

    // Free command plane: every button of every box, Escape, Enter, the
    // window closed and a box ended without any click. Texts without
    // placeholders must stay as they are although both arguments are given.
    QTest::newRow("freecmd 0: Continua")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Continua") << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << yes;
    QTest::newRow("freecmd 0: Annulla")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: Escape")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: Enter")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: window closed")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 0: no click")
        << Family::FreeCmd << 0 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::ContinueCancel
        << QStringLiteral("Attenzione:\n"
                          "Selezionando 'Continua' si render\u00e0 possibile\n"
                          "entrare in modalit\u00e0 'PIANO COMANDI LIBERO' !\n"
                          "Si avverte che tale modalit\u00e0 \u00e8 consigliata\n"
                          "ai soli UTENTI ESPERTI !!!")
        << ign;
    QTest::newRow("freecmd 1: OK")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("OK") << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << no;
    QTest::newRow("freecmd 1: Annulla")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: Escape")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: Enter")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << no;
    QTest::newRow("freecmd 1: window closed")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 1: no click")
        << Family::FreeCmd << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::OkCancel
        << QStringLiteral("Attenzione:\n"
                          "Stai entrando sul 'Piano Comandi Manuale' \n"
                          "   ALLINEATO   al 'Piano Comandi Automatico':\n"
                          "le modifiche fatte al 'Piano Comandi Manuale'\n"
                          "potranno essere recuperate.")
        << ign;
    QTest::newRow("freecmd 2: Salva")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Salva") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << yes;
    QTest::newRow("freecmd 2: Esci")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Esci") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << no;
    QTest::newRow("freecmd 2: Annulla")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Annulla") << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: Escape")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: Enter")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << yes;
    QTest::newRow("freecmd 2: window closed")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 2: no click")
        << Family::FreeCmd << 2 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::SaveExitCancel
        << QStringLiteral("Attenzione:\n"
                          "Il 'PIANO COMANDI LIBERO' \u00e8 stato modificato!.\n"
                          "Vuoi salvare le modifiche fatte ?")
        << ign;
    QTest::newRow("freecmd 3: Si")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 3: No")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: Escape")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: Enter")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: window closed")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 3: no click")
        << Family::FreeCmd << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "   NON CONFERMATA CON OK ! \n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Si")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 4: No")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Escape")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: Enter")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: window closed")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 4: no click")
        << Family::FreeCmd << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "NON sono state applicate ! \n"
                          "Continuando verranno PERSE. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Si")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 5: No")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Escape")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: Enter")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: window closed")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 5: no click")
        << Family::FreeCmd << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sul 'PIANO COMANDI LIBERO' le modifiche fatte\n"
                          "     NON sono state confermate con Ok! \n"
                          "Continuando verranno Perse. Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 6: Chiudi")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 6: Escape")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 6: window closed")
        << Family::FreeCmd << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Prima di uscire dalla modalit\u00e0 'PIANO COMANDI LIBERO'\n"
                          "\u00e8 necessario completare e chiudere la finestra Report !")
        << 0;
    QTest::newRow("freecmd 7: Si")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 7: No")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: Escape")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: Enter")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: window closed")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 7: no click")
        << Family::FreeCmd << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono state rilevate modifiche al Setup del progetto !\n"
                          "L'ingresso in modalit\u00e0 Piano Comandi Libero comporta:\n"
                          "- riallineamento del Piano Comandi all'ultima elaborazione automatica\n"
                          "- cancellazione dei comandi manuali non congruenti con i dati di Setup\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 8: Chiudi")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 8: Escape")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 8: window closed")
        << Family::FreeCmd << 8 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile agire sui comandi con il Report attivo!\n")
        << 0;
    QTest::newRow("freecmd 9: Si")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << yes;
    QTest::newRow("freecmd 9: No")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: Escape")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: Enter")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: window closed")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 9: no click")
        << Family::FreeCmd << 9 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "NESSUN comando \u00e8 stato recuperato.\n"
                          "Uscendo non sar\u00e0 pi\u00f9 possibile alcun recupero.\n"
                          "Sei sicuro di voler uscire ?")
        << no;
    QTest::newRow("freecmd 10: Chiudi")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 10: Escape")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 10: window closed")
        << Family::FreeCmd << 10 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Per eliminare un comando spostato\n"
                          "\u00e8 necessario prima annullare lo spostamento!\n")
        << 0;
    QTest::newRow("freecmd 11: Si")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 11: No")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: Escape")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: Enter")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: window closed")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 11: no click")
        << Family::FreeCmd << 11 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "SCS 'Piano Comandi Manuale' in Controllo Taglia !\n"
                          "L'Acquisizione SCS verr\u00e0 eliminata !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Si")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << yes;
    QTest::newRow("freecmd 12: No")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("No") << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Escape")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: Enter")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: window closed")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 12: no click")
        << Family::FreeCmd << 12 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::YesNo
        << QStringLiteral("Attenzione:\n"
                          "Sono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n"
                          "ARG1\n"
                          "I comandi di questi accessori verranno ignorati !\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("freecmd 13: Chiudi")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 13: Escape")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 13: window closed")
        << Family::FreeCmd << 13 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente una asociazione \n"
                          "PAT manuale al colore ARG1 da importare !\n"
                          "Il colore importato verr\u00e0 sostituito \n"
                          "con il colore selezionato o con il primo libero !\n")
        << 0;
    QTest::newRow("freecmd 14: Chiudi")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;
    QTest::newRow("freecmd 14: Escape")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;
    QTest::newRow("freecmd 14: window closed")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Nel progetto \u00e8 gi\u00e0 presente un PAT manuale con nome ARG1 !\n"
                          "Il PAT importato verr\u00e0 rinominato e associato come : ARG2 !\n")
        << 0;

    // Values are filled once: a first argument that holds "%2" is shown as
    // it stands, never filled by the second one.
    QTest::newRow("freecmd 14: first argument holding %2")
        << Family::FreeCmd << 14 << QStringList {QStringLiteral("%2"), QStringLiteral("PAT_B")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\nNel progetto \u00e8 gi\u00e0 presente un PAT manuale con "
                          "nome %2 !\nIl PAT importato verr\u00e0 rinominato e associato come "
                          ": PAT_B !\n")
        << 0;
    QTest::newRow("freecmd 12: empty argument")
        << Family::FreeCmd << 12 << QStringList {} << click("Si") << Box::YesNo
        << QStringLiteral("Attenzione:\nSono presenti comandi guidafilo con accessori associati!\n"
                          "non compatibili con quelli gi\u00e0 in uso nel progetto\n\n"
                          "I comandi di questi accessori verranno ignorati !\nVuoi continuare ?")
        << yes;

    // Scheme (%1 = a number of steps).
    QTest::newRow("scheme 0") << Family::Scheme << 0 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Una zona a 4 cadute deve essere almeno di 12 passi!")
                              << none;
    QTest::newRow("scheme 0: Escape")
        << Family::Scheme << 0 << QStringList {QStringLiteral("12")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute deve essere almeno di 12 passi!")
        << none;
    QTest::newRow("scheme 0: window closed")
        << Family::Scheme << 0 << QStringList {QStringLiteral("12")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Una zona a 4 cadute deve essere almeno di 12 passi!")
        << none;
    QTest::newRow("scheme 1") << Family::Scheme << 1 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Fra 2 zone a 4 cadute ci devono essere almeno 12 passi!")
                              << none;
    QTest::newRow("scheme 2")
        << Family::Scheme << 2 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultima zona e la fine disegno ci devono essere almeno 12 passi!")
        << none;
    QTest::newRow("scheme 3")
        << Family::Scheme << 3 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile inserire una zona sovrapposta alle esistenti!")
        << none;
    QTest::newRow("scheme 4")
        << Family::Scheme << 4 << QStringList {QStringLiteral("12")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile aggiungere il passo richiesto alla zona!")
        << none;
    QTest::newRow("scheme 5") << Family::Scheme << 5 << QStringList {QStringLiteral("12")}
                              << click("Chiudi") << Box::WarningClose
                              << QStringLiteral(
                                     "Attenzione:\n"
                                     "Non \u00e8 possibile togliere il passo richiesto alla zona!")
                              << none;

    // Skeleton: value 4 is the distance from the end of the drawing, not
    // "aggiungere".
    QTest::newRow("skel 0") << Family::Skel << 0 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Un Bordo deve essere almeno di 7 passi !")
                            << none;
    QTest::newRow("skel 1") << Family::Skel << 1 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Fra due bordi ci devono essere almeno 7 passi non bordo !")
                            << none;
    QTest::newRow("skel 2") << Family::Skel << 2 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Non \u00e8 possibile aggiungere il passo richiesto al bordo !")
                            << none;
    QTest::newRow("skel 3") << Family::Skel << 3 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Non \u00e8 possibile togliere il passo richiesto al bordo !")
                            << none;
    QTest::newRow("skel 4")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 4: Escape")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 4: window closed")
        << Family::Skel << 4 << QStringList {QStringLiteral("7")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fra l'ultimo bordo e la fine disegno ci devono essere almeno 7 passi !")
        << none;
    QTest::newRow("skel 5") << Family::Skel << 5 << QStringList {QStringLiteral("7")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Il primo bordo deve partire al passo 1 oppure dopo il passo 7!")
                            << none;
    QTest::newRow("skel 6")
        << Family::Skel << 6 << QStringList {QStringLiteral("7")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Il bordo che inizia al passo 7 NON ha il check del guidafilo abilitato!")
        << none;

    // Automatic elaboration: only value 1 asks; the warnings report No.
    QTest::newRow("elab 1: Si") << Family::Elab << 1
                                << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                                << click("Si") << Box::WarningYesNo
                                << QStringLiteral("Attenzione:\n"
                                                  "Le modifiche precedentemente apportate al\n"
                                                  "Piano Comandi verranno Eliminate !!\n"
                                                  "Vuoi continuare ?")
                                << yes;
    QTest::newRow("elab 1: No") << Family::Elab << 1
                                << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                                << click("No") << Box::WarningYesNo
                                << QStringLiteral("Attenzione:\n"
                                                  "Le modifiche precedentemente apportate al\n"
                                                  "Piano Comandi verranno Eliminate !!\n"
                                                  "Vuoi continuare ?")
                                << no;
    QTest::newRow("elab 1: Escape")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: Enter")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::enter() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: window closed")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::close() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 1: no click")
        << Family::Elab << 1 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::reject() << Box::WarningYesNo
        << QStringLiteral("Attenzione:\n"
                          "Le modifiche precedentemente apportate al\n"
                          "Piano Comandi verranno Eliminate !!\n"
                          "Vuoi continuare ?")
        << no;
    QTest::newRow("elab 2") << Family::Elab << 2
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "L'articolo deve iniziare con un bordo uncini !")
                            << no;
    QTest::newRow("elab 3") << Family::Elab << 3
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Fili in lavoro non definiti !")
                            << no;
    QTest::newRow("elab 3: Escape")
        << Family::Elab << 3 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Fili in lavoro non definiti !")
        << no;
    QTest::newRow("elab 4")
        << Family::Elab << 4 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non \u00e8 possibile "
               "avere\n"
               "  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non \u00e8 possibile "
               "avere\n"
               "  entrambi i guidafili associati ad una pinza !\n"
               "\n"
               "- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non \u00e8 possibile "
               "avere\n"
               "  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 5")
        << Family::Elab << 5 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia ad 1 filo, sulla caduta ARG1, non \u00e8 possibile "
               "avere\n"
               "il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 6")
        << Family::Elab << 6 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia a 2 fili, sulla caduta ARG1, non \u00e8 possibile avere\n"
               "entrambi i guidafili associati ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 7")
        << Family::Elab << 7 << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non \u00e8 possibile avere\n"
               "un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !\n"
               "\n"
               "E' necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire\n"
               "il cambio per terminare lo Scarico Maglia.")
        << no;
    QTest::newRow("elab 8") << Family::Elab << 8
                            << QStringList {QStringLiteral("ARG1"), QStringLiteral("ARG2")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Punto maglia 'ARG1' non identificato nel Pat :\n"
                                              "ARG2")
                            << no;

    // Command plane.
    QTest::newRow("cmdplane 1") << Family::CommandPlane << 1 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral(
                                       "Attenzione:\n"
                                       "Non \u00e8 possibile inserire zone maglie sul passo !")
                                << none;
    QTest::newRow("cmdplane 2") << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral("Attenzione:\n"
                                                  "Non ci sono alimentatori 9 attivi nella zona !")
                                << none;
    QTest::newRow("cmdplane 2: Escape")
        << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")} << Action::escape()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non ci sono alimentatori 9 attivi nella zona !")
        << none;
    QTest::newRow("cmdplane 2: window closed")
        << Family::CommandPlane << 2 << QStringList {QStringLiteral("9")} << Action::close()
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non ci sono alimentatori 9 attivi nella zona !")
        << none;
    QTest::newRow("cmdplane 3") << Family::CommandPlane << 3 << QStringList {QStringLiteral("9")}
                                << click("Chiudi") << Box::WarningClose
                                << QStringLiteral(
                                       "Attenzione:\n"
                                       "Plat\u00f2 abbassato con uncini attivi al passo 9 !")
                                << none;
    QTest::newRow("cmdplane 4")
        << Family::CommandPlane << 4 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile inserire il comando plat\u00f2 sul passo !")
        << none;
    QTest::newRow("cmdplane 5")
        << Family::CommandPlane << 5 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 possibile avere la camme rientro parziale uncini\n"
                          " insieme alla camme uscita uncini al passo 9 !")
        << none;
    QTest::newRow("cmdplane 6")
        << Family::CommandPlane << 6 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Passo 9: Plat\u00f2 Motorizzato basso/alto con uncini attivi!")
        << none;
    QTest::newRow("cmdplane 7")
        << Family::CommandPlane << 7 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Sul passo Non \u00e8 possibile inserire il comando 'Plat\u00f2 Motorizzato!'")
        << none;
    QTest::newRow("cmdplane 8")
        << Family::CommandPlane << 8 << QStringList {QStringLiteral("9")} << click("Chiudi")
        << Box::WarningClose
        << QStringLiteral(
               "Attenzione:\n"
               "Sul passo Non \u00e8 possibile inserire il comando 'Stop Espulsore Articolo!'")
        << none;

    // Body planes, all with 2, 15 and 300 (value 9 with them is the worked
    // example); the result is always 0.
    QTest::newRow("body 1") << Family::BodyPlane << 1
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione: Piano Body n. 2\n"
                                              "Colore 15 non assegnato")
                            << 0;
    QTest::newRow("body 2") << Family::BodyPlane << 2
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone maglia")
                            << 0;
    QTest::newRow("body 3") << Family::BodyPlane << 3
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone alimentatori BodyMap")
                            << 0;
    QTest::newRow("body 4") << Family::BodyPlane << 4
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non sono presenti zone alimentatori BodyShape")
                            << 0;
    QTest::newRow("body 5") << Family::BodyPlane << 5
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral("Attenzione:\n"
                                              "Non \u00e8 presente la zona maglie per il passo 2")
                            << 0;
    QTest::newRow("body 6")
        << Family::BodyPlane << 6
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 presente la zona alimentatori BodyMap per il passo 2")
        << 0;
    QTest::newRow("body 7")
        << Family::BodyPlane << 7
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Non \u00e8 presente la zona alimentatori BodyShape per il passo 2")
        << 0;
    QTest::newRow("body 8") << Family::BodyPlane << 8
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Valore di sbilanciamento inferiore al minimo consentito\n"
                                   "Motor=2 Rango=15 Ago=300")
                            << 0;
    QTest::newRow("body 9") << Family::BodyPlane << 9
                            << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                            QStringLiteral("300")}
                            << click("Chiudi") << Box::WarningClose
                            << QStringLiteral(
                                   "Attenzione:\n"
                                   "Valore di sbilanciamento superiore al massimo consentito\n"
                                   "Motore=2 Rango=15 Ago=300")
                            << 0;
    QTest::newRow("body 9: Escape")
        << Family::BodyPlane << 9
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << Action::escape() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Valore di sbilanciamento superiore al massimo consentito\n"
                          "Motore=2 Rango=15 Ago=300")
        << 0;
    QTest::newRow("body 9: window closed")
        << Family::BodyPlane << 9
        << QStringList {QStringLiteral("2"), QStringLiteral("15"), QStringLiteral("300")}
        << Action::close() << Box::WarningClose
        << QStringLiteral("Attenzione:\n"
                          "Valore di sbilanciamento superiore al massimo consentito\n"
                          "Motore=2 Rango=15 Ago=300")
        << 0;
    QTest::newRow("body 10") << Family::BodyPlane << 10
                             << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                             QStringLiteral("300")}
                             << click("Chiudi") << Box::WarningClose
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Valore di sbilanciamento inferiore al minimo consentito\n"
                                    "Alimentatore=2 Rango=15 Ago=300")
                             << 0;
    QTest::newRow("body 11") << Family::BodyPlane << 11
                             << QStringList {QStringLiteral("2"), QStringLiteral("15"),
                                             QStringLiteral("300")}
                             << click("Chiudi") << Box::WarningClose
                             << QStringLiteral(
                                    "Attenzione:\n"
                                    "Valore di sbilanciamento superiore al massimo consentito\n"
                                    "Alimentatore=2 Rango=15 Ago=300")
                             << 0;
    QTest::newRow("body 8: negative and extreme numbers")
        << Family::BodyPlane << 8
        << QStringList {QStringLiteral("-1"), QStringLiteral("-2147483648"),
                        QStringLiteral("2147483647")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione:\nValore di sbilanciamento inferiore al minimo consentito\n"
                          "Motor=-1 Rango=-2147483648 Ago=2147483647")
        << 0;
    QTest::newRow("body 1: zeros")
        << Family::BodyPlane << 1 << QStringList {QStringLiteral("0"), QStringLiteral("0")}
        << click("Chiudi") << Box::WarningClose
        << QStringLiteral("Attenzione: Piano Body n. 0\nColore 0 non assegnato") << 0;
}

void tst_QNodrixMessageBoxPlanes::advisor()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(QStringList, args);
    QFETCH(NdxComTest::Action, action);
    QFETCH(Box, box);
    QFETCH(QString, text);
    QFETCH(int, result);

    DialogDriver driver;
    int got = 0;
    const QList<BoxRecord> records = driver.run([&] { got = call(family, value, args); }, {action});

    QCOMPARE(records.size(), 1);
    QCOMPARE(driver.unexpected(), 0);
    const BoxRecord &r = records.first();
    QVERIFY(!r.actionFailed);
    if (result != kNoResult)
        QCOMPARE(got, result);

    const Layout expected = layoutOf(box);
    QCOMPARE(r.text, text);
    QCOMPARE(r.title, QStringLiteral("Nodrix"));
    QCOMPARE(r.icon, expected.icon);
    QCOMPARE(r.buttonsByRole(), sortedByRole(expected.buttons));
    QCOMPARE(r.defaultButton, expected.defaultButton);
    QVERIFY(!r.hasParent);
    QVERIFY(r.flags & Qt::Dialog);
    QVERIFY(r.flags & Qt::MSWindowsFixedSizeDialogHint);
    for (const ButtonRecord &b : r.buttons)
        QVERIFY(b.maximumWidth > b.minimumWidth); // no fixed widths here
    QVERIFY(!r.hasOverrideCursor);
    QVERIFY(driver.cursorRestored());
}

void tst_QNodrixMessageBoxPlanes::valuesShowingNothing_data()
{
    QTest::addColumn<Family>("family");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("result");

    const int no = int(QMessageBox::No);
    const int values[] = {-1, INT_MIN, INT_MAX, 100};
    for (int v : values) {
        const QByteArray n = QByteArray::number(v);
        QTest::newRow(QByteArray("freecmd " + n).constData()) << Family::FreeCmd << v << -1;
        QTest::newRow(QByteArray("scheme " + n).constData()) << Family::Scheme << v << kNoResult;
        QTest::newRow(QByteArray("skel " + n).constData()) << Family::Skel << v << kNoResult;
        QTest::newRow(QByteArray("elab " + n).constData()) << Family::Elab << v << no;
        QTest::newRow(QByteArray("commandplane " + n).constData())
            << Family::CommandPlane << v << kNoResult;
        QTest::newRow(QByteArray("bodyplane " + n).constData()) << Family::BodyPlane << v << 0;
    }
    // Just past the last value, and the unused 0.
    QTest::newRow("freecmd 15") << Family::FreeCmd << 15 << -1;
    QTest::newRow("scheme 6") << Family::Scheme << 6 << kNoResult;
    QTest::newRow("skel 7") << Family::Skel << 7 << kNoResult;
    QTest::newRow("elab 0") << Family::Elab << 0 << no;
    QTest::newRow("elab 9") << Family::Elab << 9 << no;
    QTest::newRow("commandplane 0") << Family::CommandPlane << 0 << kNoResult;
    QTest::newRow("commandplane 9") << Family::CommandPlane << 9 << kNoResult;
    QTest::newRow("bodyplane 0") << Family::BodyPlane << 0 << 0;
    QTest::newRow("bodyplane 12") << Family::BodyPlane << 12 << 0;
}

void tst_QNodrixMessageBoxPlanes::valuesShowingNothing()
{
    QFETCH(Family, family);
    QFETCH(int, value);
    QFETCH(int, result);

    DialogDriver driver;
    int got = 0;
    const QList<BoxRecord> records = driver.run(
        [&] {
            got = call(family, value,
                       {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
        },
        {});
    QCOMPARE(records.size(), 0);
    if (result != kNoResult)
        QCOMPARE(got, result);
    QVERIFY(driver.cursorRestored());
}

void tst_QNodrixMessageBoxPlanes::overrideCursorUntouched()
{
    // The application's cursor stays while an advisor of the planes is open.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    DialogDriver driver;
    const QList<BoxRecord> records = driver.run(
        [&] {
            QCOMPARE(QNodrixMessageBox::execFreeCmdModeAdvisor(
                         QNodrixMessageBox::eFreeCmdMode_SaveChanges, QString(), QString()),
                     int(QMessageBox::No));
            QNodrixMessageBox::execProjectSkelAdvisor(QNodrixMessageBox::eSkel_BorderTooShort,
                                                      QStringLiteral("3"));
        },
        {click("Esci"), click("Chiudi")});
    QCOMPARE(records.size(), 2);
    for (const BoxRecord &r : records) {
        QVERIFY(r.hasOverrideCursor);
        QCOMPARE(r.overrideCursor, Qt::WaitCursor);
    }
    QVERIFY(driver.cursorRestored());
    QApplication::restoreOverrideCursor();
}

void tst_QNodrixMessageBoxPlanes::translatedButRemembered()
{
    // A catalogue that translates everything of the class: texts and buttons
    // follow it, the title does not, and the answers still come from the
    // buttons themselves.
    NdxComTest::MarkingTranslator translator("QNodrixMessageBox");
    QCoreApplication::installTranslator(&translator);

    DialogDriver driver;
    int freeCmd = 0, elab = 0;
    const QList<BoxRecord> records = driver.run(
        [&] {
            freeCmd = QNodrixMessageBox::execFreeCmdModeAdvisor(
                QNodrixMessageBox::eFreeCmdMode_SaveChanges, QString(), QString());
            QNodrixMessageBox::execCommandPlaneAdvisor(
                QNodrixMessageBox::eCommandPlane_NoActiveFeeders, QStringLiteral("BodyMap"));
            elab = QNodrixMessageBox::execProjectElabAdvisor(
                QNodrixMessageBox::eProjElab_DiscardManualChanges, QString(), QString());
        },
        {click("[Esci]"), click("[Chiudi]"), click("[Si]")});
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(records.size(), 3);
    QCOMPARE(freeCmd, int(QMessageBox::No));
    QCOMPARE(elab, int(QMessageBox::Yes));
    for (const BoxRecord &r : records) {
        QCOMPARE(r.title, QStringLiteral("Nodrix"));
        QVERIFY(!r.actionFailed);
    }
    QCOMPARE(records.at(0).buttonsByRole(),
             sortedByRole({{QStringLiteral("[Salva]"), QMessageBox::AcceptRole},
                           {QStringLiteral("[Esci]"), QMessageBox::NoRole},
                           {QStringLiteral("[Annulla]"), QMessageBox::RejectRole}}));
    QCOMPARE(records.at(0).defaultButton, QStringLiteral("[Salva]"));
    QVERIFY(records.at(0).text.startsWith(QStringLiteral("[Attenzione:\nIl 'PIANO")));
    QCOMPARE(records.at(1).text,
             QStringLiteral("[Attenzione:\nNon ci sono alimentatori BodyMap attivi nella zona !]"));
}

NDXCOM_TEST_MAIN(tst_QNodrixMessageBoxPlanes)
#include "tst_qnodrixmessagebox_planes.moc"
