#ifndef QNODRIXMESSAGEBOX_H
#define QNODRIXMESSAGEBOX_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QMessageBox>

/*!
    The message box of the Nodrix suite: every question, warning and notice of
    the library and of the applications goes through it, so that all of them
    look alike (title "Nodrix", the product icon, Italian button texts through
    the translation of the context "QNodrixMessageBox").

    The object holds the text (m_sMsg); each fixed presentation builds, runs
    and destroys a box of its own for the duration of the call, so one object
    can show several presentations in turn. Presentations that report an
    outcome fall through to their last case when the box ends without a
    clicked button (Escape, window closed).
*/
class NDXCOM_EXPORT QNodrixMessageBox : public QMessageBox
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    enum enApplAdvisor : int { eApplAdvisor_PlatformTooOld = 0 };

    explicit QNodrixMessageBox(QWidget *parent = nullptr);
    explicit QNodrixMessageBox(QString msg, QWidget *parent = nullptr);
    ~QNodrixMessageBox() override;

    void setMsg(QString msg);

    // Fixed presentations (question/warning icons, "Si"/"No" and friends).
    StandardButton execQuestion(); // Yes if "Si", otherwise No
    StandardButton execWarning(); // Yes if "Si", otherwise No
    StandardButton execYesNoIgnore(); // Yes, No, otherwise Ignore
    StandardButton execResizeScs(); // Apply, otherwise Abort
    void execWarningClose(); // "Chiudi"
    void execCriticalClose(); // "Chiudi"
    void execWarningOk(); // "Ok"
    StandardButton execWarningCloseHelp(); // Help if "Dettagli", otherwise Ok
    void execInformationClose(); // "Chiudi"
    StandardButton execInformationYesNoHelp(); // Help, Yes, otherwise No
    StandardButton execYesNoNewName(); // Yes, No, otherwise Ignore

    // Diagnostic reports: fixed layouts shown through the standard boxes with
    // the arrow cursor; they do not use m_sMsg.
    void ShowErrorMessage(QString sClass, int nVersion, int nLoadedVersion, QString sFunction,
                          QString sMessage);
    void ShowErrorMessage(QString sClass, QString sFunction, QString sMessage);
    void ShowWarningMessage(QString sClass, QString sFunction, QString sMessage);
    void ShowInfoMessage(QString sMessage);

    // Warns that the machine software needs platform version sArg. uArg is
    // accepted and ignored; values other than 0 show nothing.
    static void execApplAdvisor(enApplAdvisor eType, QString sArg, unsigned int uArg);

    // ---- Plane editors' advisors and the module rules report -------------
    //
    // Each advisor chooses a fixed Italian text by its value, translates it
    // (context QNodrixMessageBox), fills %1, %2, %3 from its arguments with one
    // QString::arg each, in that order, and shows it. Because the filling is
    // sequential, an argument that itself holds a placeholder such as "%2" is
    // filled by the next argument, as it always was. No advisor of this group
    // sets an override cursor. Values without a text show nothing; the
    // enumerations have a fixed int type, so any int can be passed.

    // Entering, leaving and editing the free command plane.
    enum enFreeCmdModeAdvisor : int {
        eFreeCmdMode_ConfirmEnter = 0, // "Continua" / "Annulla"
        eFreeCmdMode_EnterAlignedManual = 1, // "OK" / "Annulla"
        eFreeCmdMode_SaveChanges = 2, // "Salva" / "Esci" / "Annulla"
        eFreeCmdMode_ExitNotConfirmed = 3,
        eFreeCmdMode_ExitChangesNotApplied = 4,
        eFreeCmdMode_ExitChangesNotConfirmed = 5,
        eFreeCmdMode_CloseReportFirst = 6,
        eFreeCmdMode_SetupChanged = 7,
        eFreeCmdMode_ReportActive = 8,
        eFreeCmdMode_NothingRecovered = 9,
        eFreeCmdMode_UndoMoveFirst = 10,
        eFreeCmdMode_ScsInSizeControl = 11,
        eFreeCmdMode_IncompatibleAccessories = 12, // %1 = sArg1
        eFreeCmdMode_PatColourTaken = 13, // %1 = sArg1
        eFreeCmdMode_PatNameTaken = 14 // %1 = sArg1, %2 = sArg2
    };

    // Zones of 4 feeds within the scheme; %1 = sArg (a number of steps).
    enum enSchemeAdvisor : int {
        eScheme_ZoneTooShort = 0,
        eScheme_ZonesTooClose = 1,
        eScheme_LastZoneTooCloseToEnd = 2,
        eScheme_ZoneOverlaps = 3,
        eScheme_CannotAddStep = 4,
        eScheme_CannotRemoveStep = 5
    };

    // Borders of the skeleton; %1 = sArg (a step number or a number of steps).
    // The values do not follow the order of the texts: the last border's
    // distance from the end of the drawing is 4.
    enum enSkelAdvisor : int {
        eSkel_BorderTooShort = 0,
        eSkel_BordersTooClose = 1,
        eSkel_CannotAddStep = 2,
        eSkel_CannotRemoveStep = 3,
        eSkel_LastBorderTooCloseToEnd = 4,
        eSkel_FirstBorderStart = 5,
        eSkel_YarnGuideCheckOff = 6
    };

    // Automatic elaboration of the project. 0 has no text.
    enum enProjElabAdvisor : int {
        eProjElab_None = 0,
        eProjElab_DiscardManualChanges = 1, // asks "Si" / "No"
        eProjElab_NoHookBorderAtStart = 2,
        eProjElab_WorkingYarnsUndefined = 3,
        eProjElab_KnitOffClampRules = 4, // the rules of 5 to 7 together
        eProjElab_KnitOffOneYarnGroup2 = 5, // %1 = sArg1 (feed)
        eProjElab_KnitOffTwoYarnsBoth = 6, // %1 = sArg1 (feed)
        eProjElab_KnitOffTwoYarnsFifthFeed = 7,
        eProjElab_StitchNotInPat = 8 // %1 = sArg1 (stitch), %2 = sArg2 (pattern)
    };

    // Editing the command plane; %1 = sArg. 0 has no text.
    enum enCommandPlaneAdvisor : int {
        eCommandPlane_None = 0,
        eCommandPlane_NoStitchZoneOnStep = 1,
        eCommandPlane_NoActiveFeeders = 2,
        eCommandPlane_SinkerDownWithHooks = 3,
        eCommandPlane_NoSinkerCommandOnStep = 4,
        eCommandPlane_PartialHookReturnWithHookExit = 5,
        eCommandPlane_MotorSinkerWithHooks = 6,
        eCommandPlane_NoMotorSinkerOnStep = 7,
        eCommandPlane_NoEjectorStopOnStep = 8
    };

    // Body planes and unbalance limits; %1, %2, %3 = nArg1, nArg2, nArg3 in
    // decimal. 0 has no text.
    enum enBodyPlaneAdvisor : int {
        eBodyPlane_None = 0,
        eBodyPlane_ColourNotAssigned = 1, // plane %1, colour %2
        eBodyPlane_NoStitchZones = 2,
        eBodyPlane_NoBodyMapZones = 3,
        eBodyPlane_NoBodyShapeZones = 4,
        eBodyPlane_NoStitchZoneForStep = 5,
        eBodyPlane_NoBodyMapZoneForStep = 6,
        eBodyPlane_NoBodyShapeZoneForStep = 7,
        eBodyPlane_MotorBelowMinimum = 8, // motor %1, course %2, needle %3
        eBodyPlane_MotorAboveMaximum = 9,
        eBodyPlane_FeederBelowMinimum = 10, // feeder %1, course %2, needle %3
        eBodyPlane_FeederAboveMaximum = 11
    };

    // Free command plane. Values 6, 8, 10, 13 and 14 warn with "Chiudi" and
    // return 0. The others ask with an information box of their own and
    // return Yes, No or Ignore (as int): 0 gives Yes for "Continua", 1 gives No
    // for "OK" (on purpose), 2 gives Yes for "Salva" and No for "Esci", the
    // "Si"/"No" questions give Yes for "Si"; any other end of the box (Escape,
    // "Annulla", the window closed) gives Ignore for 0, 1 and 2 and No for the
    // rest. Values outside 0..14 show nothing and return -1.
    static int execFreeCmdModeAdvisor(enFreeCmdModeAdvisor eType, QString sArg1, QString sArg2);

    // Warns with "Chiudi" for values 0..5; shows nothing otherwise.
    static void execProjectSchemeAdvisor(enSchemeAdvisor eType, QString sArg);

    // Warns with "Chiudi" for values 0..6; shows nothing otherwise.
    static void execProjectSkelAdvisor(enSkelAdvisor eType, QString sArg);

    // Value 1 asks with execWarning() and returns its answer (Yes or No);
    // values 2..8 warn with "Chiudi" and return No; any other value shows
    // nothing and returns No.
    static StandardButton execProjectElabAdvisor(enProjElabAdvisor eType, QString sArg1,
                                                 QString sArg2);

    // Warns with "Chiudi" for values 1..8; shows nothing otherwise.
    static void execCommandPlaneAdvisor(enCommandPlaneAdvisor eType, QString sArg);

    // Warns with "Chiudi" for values 1..11; shows nothing otherwise. Always
    // returns 0.
    static int execBodyPlaneAdvisor(enBodyPlaneAdvisor eType, int nArg1, int nArg2, int nArg3);

    // Shows the explanation of a violated knitting rule. slRule holds the
    // rule's code (entry 0, a decimal number 1..65, read with toInt in base
    // 10) and the rule's k parameters (entry n fills %n; entries beyond k are
    // ignored). The box is an information box at least 500 pixels wide with
    // "Dettagli" and "Chiudi", neither of them default; both just close it.
    // Having no escape button, the box ignores Escape and the title bar's
    // close: only its buttons (or Enter) end it.
    // A code outside 1..65, or an entry 0 that is not a number, shows the box
    // with an empty text. Missing entries read as empty strings: a list
    // shorter than k + 1 fills the remaining placeholders with nothing, and an
    // empty list shows the empty box. The list is not changed.
    static void execModuleRulesAdvisor(QStringList &slRule);

private:
    QString m_sMsg;
    QWidget *m_pParent; // kept, not used by any presentation
};

#endif // QNODRIXMESSAGEBOX_H
