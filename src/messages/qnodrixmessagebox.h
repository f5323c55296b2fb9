#ifndef QNODRIXMESSAGEBOX_H
#define QNODRIXMESSAGEBOX_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QMessageBox>

QT_BEGIN_NAMESPACE
class QDataStream;
QT_END_NAMESPACE

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

    // The advisor enumerations have a fixed underlying type so that any int,
    // negative and out of range included, can be passed; such values take the
    // family's "no case" path documented at each function.

    // Project and file names (execIllegalNameAdvisor, execFileNameAdvisor).
    enum enIllegalNameAdvisor : int {
        eIllegalName_Empty = 0,
        eIllegalName_TooLong = 1,
        eIllegalName_CharNotAllowed = 2,
        eIllegalName_InvalidChars = 3,
        eIllegalName_NotWestern = 4,
        eIllegalName_ExtensionNotLower = 5
    };
    enum enFileNameAdvisor : int { eFileName_TooLong = 0, eFileName_InvalidChars = 1 };

    // Project documents and unsaved edits.
    enum enProjectDocAdvisor : int {
        eProjectDoc_NoMachineApplication = 0,
        eProjectDoc_OtherMachine = 1,
        eProjectDoc_PathNotAccessible = 2
    };
    enum enModifyDataAdvisor : int {
        eModifyData_None = 0, // shows nothing
        eModifyData_NotSaved = 1,
        eModifyData_NotConfirmed = 2,
        eModifyData_ConfirmedNotSaved = 3,
        eModifyData_RestoreDefaults = 4,
        eModifyData_CommandsNotRecovered = 5
    };

    // Machine configuration files.
    enum enMachineFileAdvisor : int {
        eMachineFile_ConfigUnreadable = 0,
        eMachineFile_Unreadable = 1,
        eMachineFile_VersionMismatch = 2,
        eMachineFile_NotRecognised = 3,
        eMachineFile_NotSupported = 4,
        eMachineFile_LoadFailed = 5,
        eMachineFile_ProjectMismatch = 6
    };
    enum enMachineXmlAdvisor : int { eMachineXml_ParseError = 0, eMachineXml_TagError = 1 };

    // Size control (SCS) and the creation of new sizes.
    enum enScsAdvisor : int {
        eScs_None = 0, // shows nothing
        eScs_NoZone = 1,
        eScs_DisableWithZones = 2,
        eScs_ZonesInSizeControl = 3,
        eScs_ChangesLocked = 4,
        eScs_ChangesMayDeleteAcquisition = 5,
        eScs_AcquisitionWillBeDeleted = 6,
        eScs_SaveAcquisition = 7,
        eScs_SaveChanges = 8,
        eScs_VectorActiveUnassigned = 9,
        eScs_SmallChangesOnly = 10,
        eScs_Resize = 11,
        eScs_FeedsDisabled = 12
    };
    enum enCreateSizeAdvisor : int {
        eCreateSize_Created = 0,
        eCreateSize_Resized = 1,
        eCreateSize_PixelMatrixFailed = 2,
        eCreateSize_DesignPlanesFailed = 3,
        eCreateSize_StructureFailed = 4,
        eCreateSize_AdaptPlanesFailed = 5,
        eCreateSize_SourceInSizeControl = 6,
        eCreateSize_NewSizeFailed = 7,
        eCreateSize_ResizeFailed = 8,
        eCreateSize_ResizeFailedRanks = 9, // same text as 8
        eCreateSize_ScsZones = 10,
        eCreateSize_KnitZones = 11,
        eCreateSize_Zones = 12,
        eCreateSize_SpeedZones = 13
    };

    // Automatic changes to a project and its protected mode.
    enum enModifyProjAdvisor : int { eModifyProj_CommandsRemoved = 0, eModifyProj_Changes = 1 };
    // Bits of execModifyProjAdvisor's uFlags (with eModifyProj_Changes).
    enum enModifyProjFlag : unsigned int {
        eModifyProjFlag_UserZonesRemoved = 0x1,
        eModifyProjFlag_DefaultsInserted = 0x2
    };
    enum enProtectedModeAdvisor : int { eProtectedMode_Ask = 0, eProtectedMode_Empty = 1 };

    explicit QNodrixMessageBox(QWidget *parent = nullptr);
    explicit QNodrixMessageBox(QString msg, QWidget *parent = nullptr);
    ~QNodrixMessageBox() override;

    void setMsg(QString msg);

    // Fixed presentations (question/warning icons, "Si"/"No" and friends).
    StandardButton execQuestion(); // Yes if "Si", otherwise No
    StandardButton execWarning(); // Yes if "Si", otherwise No
    StandardButton execYesNoIgnore(); // Yes, No, otherwise Ignore
    // Apply, otherwise Abort. Both buttons are 140 pixels wide with their
    // Italian labels; a translated label that needs more widens its button.
    StandardButton execResizeScs();
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

    // Project, name and machine-file advisors. Texts are filled one
    // placeholder at a time; the ones marked "hand" set the pointing-hand
    // override cursor for the whole call (also when they show nothing) and
    // restore it afterwards.

    // Warning about a refused project name: 1 fills in nArg (the longest
    // name), 2 and 3 sArg (the refused characters). Every other value, a
    // negative one included, shows a warning with an empty text.
    static void execIllegalNameAdvisor(enIllegalNameAdvisor eType, QString sArg, int nArg);
    // Hand. Warning about a file name chosen in the save dialog: 0 fills in
    // nArg, 1 sArg; other values show nothing. Always returns No.
    static StandardButton execFileNameAdvisor(enFileNameAdvisor eType, QString sArg, int nArg);
    // Hand. Critical (0) or warning (1, 2) about the project document; sArg
    // and nArg are not used; other values show nothing. Always returns No.
    static StandardButton execProjectDocAdvisor(enProjectDocAdvisor eType, QString sArg, int nArg);
    // Asks whether to leave or reset an editor (1 to 5): Yes if "Si" was
    // clicked, otherwise No. 0 and other values show nothing and return No.
    static StandardButton execModifyDataAdvisor(enModifyDataAdvisor eType);
    // execModifyDataAdvisor(eModifyData_NotSaved).
    static StandardButton execModified();
    // Warning (0 to 4) or critical box (5, 6) about the machine files; the
    // arguments fill the placeholders in order. Other values show nothing.
    // Always returns 0.
    static int execMachineFileAdvisor(enMachineFileAdvisor eType, QString sArg1, QString sArg2,
                                      QString sArg3);
    // Hand. Warning about an error in a machine XML file: %1 is sFile, the
    // following placeholders take slArgs from its first entry on (three for
    // 0, four for 1). Entries the list lacks read as empty strings; the list
    // is not changed. Other values show nothing. Always returns No.
    static StandardButton execMachineXmlAdvisor(enMachineXmlAdvisor eType, QString sFile,
                                                QStringList &slArgs);

    // Hand. Critical boxes titled tr("Nodrix") with an Ok button, parented to
    // the active window, about a file that could not be opened, read or
    // written, or an archive read through a data stream.
    static void execFileOpenError(QString sFile, QString sReason);
    static void execFileReadError(QString sFile, QString sReason);
    static void execFileWriteError(QString sFile, QString sReason);
    // The file sFile is a corrupt archive.
    static void execDataStreamErrorFile(QString sFile);
    // Reading an object of sClass failed; shows the stream's status as
    // "ReadPastEnd" or "ReadCorruptData" (empty for any other status).
    static void execDataStreamErrorRead(QString sClass, unsigned int uVersion,
                                        unsigned int uLoadedVersion, QDataStream &stream);
    // sFunction met an object version it does not know.
    static void execDataStreamErrorVersion(QString sClass, unsigned int uVersion,
                                           unsigned int uLoadedVersion, QString sFunction);

    // Size-control and project-modification advisors (no override cursor).

    // Questions and warnings about size control (1 to 12); sArg fills in the
    // zone list of 12. Returns the presentation's button code (Yes/No, or
    // Apply/Abort for 11); 3, 4, 5 and 12 return their own value. 0 and other
    // values show nothing and return -1.
    static int execScsAdvisor(enScsAdvisor eType, QString sArg);
    // Notices about a new size or a resized project (0 to 13); sArg fills in
    // the kind of zone of 12. The unsigned argument is not used. Other values
    // show nothing.
    static void execCreateSizeAdvisor(enCreateSizeAdvisor eType, QString sArg, unsigned int uArg);
    // What an automatic change did to the command zones: 0 lists the removed
    // commands (sArg), 1 the changes named by uFlags (enModifyProjFlag; sArg
    // not used). Help if "Dettagli" was clicked, otherwise Ok; other values
    // show nothing and return 0.
    static int execModifyProjAdvisor(enModifyProjAdvisor eType, QString sArg, unsigned int uFlags);
    // 0 asks whether the project is to enter the protected mode (Help, Yes or
    // No); 1 shows an empty warning and returns 0. The other arguments are
    // not used; other values show nothing and return 0.
    static int execProtectedModeAdvisor(enProtectedModeAdvisor eType, QString sArg,
                                        unsigned int uArg);

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
