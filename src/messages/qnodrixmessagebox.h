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

    The object holds the text (setMsg()); each fixed presentation builds, runs
    and destroys a box of its own for the duration of the call, so one object
    can show several presentations in turn. Presentations that report an
    outcome fall through to their last case when the box ends without a
    clicked button (Escape, window closed).

    The boxes take their window icon from the resource
    ":/Nodrix/Resources/Nodrix.PNG", which the application provides (see
    \ref resources); without it a box has no icon of its own.

    The advisories (exec...Advisor) are static: each picks a fixed Italian
    text by the value of its enumeration, translates it, fills its
    placeholders and shows it with one of the presentations. The names of
    the diagnostic reports (ShowErrorMessage() and its siblings) keep the
    capital of the Qt 4 applications that call them. Like every class of the
    library this one also offers trUtf8(), the Qt 4 name of tr(), under Qt 6,
    where Q_OBJECT no longer declares it.

    Every box of the library is a plain-text box (Qt::PlainText), the
    diagnostic and file error reports included: a '<' in a text never makes
    it rich text. What fills a text's %1, %2, ... (names from lock files,
    file names, the reports' class, function and message, every advisor
    argument) is shown as the characters it is: markup such as "<b>",
    "<img src=...>" or "<a href=...>" literally, never formatting the box or
    loading anything. In these arguments only, each control character
    (U+0000 to U+001F, tab and line break included, and U+007F to U+009F),
    each line or paragraph separator (U+2028, U+2029) and each bidirectional
    formatting character (U+061C, U+200E, U+200F, U+202A to U+202E, U+2066
    to U+2069) is shown as U+FFFD, one for one, so that an argument cannot
    break, hide or reorder the words of the text around it. The library's own
    texts and their translations keep their line breaks and tabs, and so does
    the message of a diagnostic report (ShowErrorMessage(),
    ShowWarningMessage(), ShowInfoMessage()): it is the application's own
    wording, often on several lines.

    \headerfile qnodrixmessagebox.h <QNodrixMessageBox>
*/
class NDXCOM_EXPORT QNodrixMessageBox : public QMessageBox
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    //! The application advisory of execApplAdvisor().
    enum enApplAdvisor : int {
        eApplAdvisor_PlatformTooOld = 0 //!< The machine software needs a newer platform.
    };

    // The advisor enumerations have a fixed underlying type so that any int,
    // negative and out of range included, can be passed; such values take the
    // family's "no case" path documented at each function.

    //! Project names refused by execIllegalNameAdvisor().
    //! Like every advisor enumeration it has a fixed underlying type, so that
    //! any int, negative and out of range included, can be passed; such
    //! values take the family's "no case" path documented at each function.
    enum enIllegalNameAdvisor : int {
        eIllegalName_Empty = 0, //!< No name was entered.
        eIllegalName_TooLong = 1, //!< Longer than nArg characters.
        eIllegalName_CharNotAllowed = 2, //!< The character sArg is not allowed.
        eIllegalName_InvalidChars = 3, //!< Names may not hold the characters sArg.
        eIllegalName_NotWestern = 4, //!< Only western characters are allowed.
        eIllegalName_ExtensionNotLower = 5 //!< Only a lower-case ".ndx" is allowed.
    };
    //! File names chosen in the save dialog, for execFileNameAdvisor().
    enum enFileNameAdvisor : int {
        eFileName_TooLong = 0, //!< Longer than nArg characters.
        eFileName_InvalidChars = 1 //!< Holds characters of sArg.
    };

    //! Project documents, for execProjectDocAdvisor().
    enum enProjectDocAdvisor : int {
        eProjectDoc_NoMachineApplication = 0, //!< No machine application is defined.
        eProjectDoc_OtherMachine = 1, //!< The project is of another machine.
        eProjectDoc_PathNotAccessible = 2 //!< The last path is not accessible; the default is used.
    };
    //! Unsaved edits, for execModifyDataAdvisor().
    enum enModifyDataAdvisor : int {
        eModifyData_None = 0, //!< Shows nothing.
        eModifyData_NotSaved = 1, //!< The changes are not saved; leave anyway?
        eModifyData_NotConfirmed = 2, //!< The changes are not confirmed; leave anyway?
        eModifyData_ConfirmedNotSaved = 3, //!< Confirmed but not saved; leave anyway?
        eModifyData_RestoreDefaults = 4, //!< "Ripristina" removes every change of the user; go on?
        eModifyData_CommandsNotRecovered = 5 //!< Unrecovered commands will be lost; leave?
    };

    //! Machine configuration files, for execMachineFileAdvisor().
    enum enMachineFileAdvisor : int {
        eMachineFile_ConfigUnreadable = 0, //!< The configuration cannot be read.
        eMachineFile_Unreadable = 1, //!< A machine file cannot be read.
        eMachineFile_VersionMismatch = 2, //!< A machine file has another version.
        eMachineFile_NotRecognised = 3, //!< A machine file is not recognised.
        eMachineFile_NotSupported = 4, //!< A machine file is not supported.
        eMachineFile_LoadFailed = 5, //!< Loading failed (critical).
        eMachineFile_ProjectMismatch = 6 //!< The project does not match (critical).
    };
    //! Errors in a machine XML file, for execMachineXmlAdvisor().
    enum enMachineXmlAdvisor : int {
        eMachineXml_ParseError = 0, //!< The file cannot be parsed (three entries).
        eMachineXml_TagError = 1 //!< A tag is wrong (four entries).
    };

    //! Size control (SCS), for execScsAdvisor().
    enum enScsAdvisor : int {
        eScs_None = 0, //!< Shows nothing.
        eScs_NoZone = 1, //!< No size-control zone: insert one or disable size control.
        eScs_DisableWithZones = 2, //!< Zones exist: delete them too when disabling?
        eScs_ZonesInSizeControl = 3, //!< Under size control: zones may cost the acquisition.
        eScs_ChangesLocked = 4, //!< Under size control: some changes are not possible.
        eScs_ChangesMayDeleteAcquisition = 5, //!< Changes may cost the acquisition.
        eScs_AcquisitionWillBeDeleted = 6, //!< The acquisition will be deleted; go on?
        eScs_SaveAcquisition = 7, //!< Save the acquisition?
        eScs_SaveChanges = 8, //!< Save the changes?
        eScs_VectorActiveUnassigned = 9, //!< Every Vector Active must be associated first.
        eScs_SmallChangesOnly = 10, //!< Make only the small design changes needed.
        eScs_Resize = 11, //!< Adapt the acquisition or cancel (Apply or Abort).
        eScs_FeedsDisabled = 12 //!< Not every feed of the zones sArg has a feeder.
    };
    //! New sizes and resized projects, for execCreateSizeAdvisor().
    enum enCreateSizeAdvisor : int {
        eCreateSize_Created = 0, //!< The new size was created.
        eCreateSize_Resized = 1, //!< The project was resized.
        eCreateSize_PixelMatrixFailed = 2, //!< Resizing the pixel matrix failed.
        eCreateSize_DesignPlanesFailed = 3, //!< Resizing the design planes failed.
        eCreateSize_StructureFailed = 4, //!< Resizing the project structure failed.
        eCreateSize_AdaptPlanesFailed = 5, //!< Adapting the design planes failed.
        eCreateSize_SourceInSizeControl = 6, //!< The source is under size control; data adapted.
        eCreateSize_NewSizeFailed = 7, //!< The new size could not be made.
        eCreateSize_ResizeFailed = 8, //!< The resize failed.
        eCreateSize_ResizeFailedRanks = 9, //!< Same text as eCreateSize_ResizeFailed.
        eCreateSize_ScsZones = 10, //!< Resizing would delete size-control zones.
        eCreateSize_KnitZones = 11, //!< Resizing would delete stitch zones.
        eCreateSize_Zones = 12, //!< Resizing would delete zones of the kind sArg.
        eCreateSize_SpeedZones = 13 //!< Resizing would delete speed zones.
    };

    //! Automatic changes to a project, for execModifyProjAdvisor().
    enum enModifyProjAdvisor : int {
        eModifyProj_CommandsRemoved = 0, //!< Commands inserted by the user were removed (sArg).
        eModifyProj_Changes = 1 //!< Lists the changes named by uFlags.
    };
    //! Bits of execModifyProjAdvisor's uFlags (with eModifyProj_Changes).
    enum enModifyProjFlag : unsigned int {
        eModifyProjFlag_UserZonesRemoved = 0x1, //!< User zones were removed.
        eModifyProjFlag_DefaultsInserted = 0x2 //!< Default values were inserted.
    };
    //! The protected mode, for execProtectedModeAdvisor().
    enum enProtectedModeAdvisor : int {
        eProtectedMode_Ask = 0, //!< Enter the protected mode? (Help, Yes or No)
        eProtectedMode_Empty = 1 //!< An empty warning.
    };

    //! Makes a box with an empty text. parent is kept but not used: every
    //! presentation runs a box of its own without a parent.
    explicit QNodrixMessageBox(QWidget *parent = nullptr);
    //! Makes a box with the text msg; parent as in the other constructor.
    explicit QNodrixMessageBox(QString msg, QWidget *parent = nullptr);
    //! Destroys the object.
    ~QNodrixMessageBox() override;

    //! Replaces the text the presentations show.
    void setMsg(QString msg);

    //! \name Fixed presentations
    //! Question and warning icons, "Si"/"No" and friends; each shows the
    //! object's text (setMsg()) and answers with the button named, or with
    //! its "otherwise" when the box ends another way.
    //! @{

    //! A question box with "Si" and "No".
    StandardButton execQuestion(); // Yes if "Si", otherwise No
    //! A warning box with "Si" and "No".
    StandardButton execWarning(); // Yes if "Si", otherwise No
    //! A warning box with "Si", "No" and "Ignora".
    StandardButton execYesNoIgnore(); // Yes, No, otherwise Ignore
    //! A warning box with "ADATTA\nAcquisizione SCS" and "ANNULLA\nModifica",
    //! both 140 pixels wide (wider where a translation needs it).
    StandardButton execResizeScs(); // Apply, otherwise Abort
    //! A warning box with "Chiudi".
    void execWarningClose(); // "Chiudi"
    //! A critical box with "Chiudi".
    void execCriticalClose(); // "Chiudi"
    //! A warning box with "Ok".
    void execWarningOk(); // "Ok"
    //! A warning box with "Dettagli" and "Chiudi".
    StandardButton execWarningCloseHelp(); // Help if "Dettagli", otherwise Ok
    //! An information box with "Chiudi".
    void execInformationClose(); // "Chiudi"
    //! An information box with "Dettagli", "Si" (the default) and "No".
    StandardButton execInformationYesNoHelp(); // Help, Yes, otherwise No
    //! A warning box with "Si", "No" and "Salva con nome".
    StandardButton execYesNoNewName(); // Yes, No, otherwise Ignore
    //! @}

    //! \name Diagnostic reports
    //! Fixed layouts shown through the standard boxes with the arrow cursor;
    //! they do not use the object's text.
    //! @{

    //! A critical box titled "Errore" about an object of sClass whose
    //! version nLoadedVersion does not match nVersion in sFunction.
    void ShowErrorMessage(QString sClass, int nVersion, int nLoadedVersion, QString sFunction,
                          QString sMessage);
    //! A critical box titled "Errore" with class, function and message.
    void ShowErrorMessage(QString sClass, QString sFunction, QString sMessage);
    //! A warning box titled "Attenzione" with class, function and message.
    void ShowWarningMessage(QString sClass, QString sFunction, QString sMessage);
    //! An information box titled "Informazione" with the message.
    void ShowInfoMessage(QString sMessage);
    //! @}

    //! Warns that the machine software needs platform version sArg. uArg is
    //! accepted and ignored; values other than 0 show nothing.
    static void execApplAdvisor(enApplAdvisor eType, QString sArg, unsigned int uArg);

    /*!
        \name Project, name and machine-file advisors

        Texts are filled one placeholder at a time; the ones marked "hand"
        set the pointing-hand override cursor for the whole call (also when
        they show nothing) and restore it afterwards.
    */
    //! @{

    //! Warning about a refused project name: 1 fills in nArg (the longest
    //! name), 2 and 3 sArg (the refused characters). Every other value, a
    //! negative one included, shows a warning with an empty text.
    static void execIllegalNameAdvisor(enIllegalNameAdvisor eType, QString sArg, int nArg);
    //! Hand. Warning about a file name chosen in the save dialog: 0 fills in
    //! nArg, 1 sArg; other values show nothing. Always returns No.
    static StandardButton execFileNameAdvisor(enFileNameAdvisor eType, QString sArg, int nArg);
    //! Hand. Critical (0) or warning (1, 2) about the project document; sArg
    //! and nArg are not used; other values show nothing. Always returns No.
    static StandardButton execProjectDocAdvisor(enProjectDocAdvisor eType, QString sArg, int nArg);
    //! Asks whether to leave or reset an editor (1 to 5): Yes if "Si" was
    //! clicked, otherwise No. 0 and other values show nothing and return No.
    static StandardButton execModifyDataAdvisor(enModifyDataAdvisor eType);
    //! execModifyDataAdvisor(eModifyData_NotSaved).
    static StandardButton execModified();
    //! Warning (0 to 4) or critical box (5, 6) about the machine files; the
    //! arguments fill the placeholders in order. Other values show nothing.
    //! Always returns 0.
    static int execMachineFileAdvisor(enMachineFileAdvisor eType, QString sArg1, QString sArg2,
                                      QString sArg3);
    //! Hand. Warning about an error in a machine XML file: %1 is sFile, the
    //! following placeholders take slArgs from its first entry on (three for
    //! 0, four for 1). Entries the list lacks read as empty strings; the list
    //! is not changed. Other values show nothing. Always returns No.
    static StandardButton execMachineXmlAdvisor(enMachineXmlAdvisor eType, QString sFile,
                                                QStringList &slArgs);

    //! Hand. A critical box titled tr("Nodrix") with an Ok button, parented
    //! to the active window, about a file that could not be opened.
    static void execFileOpenError(QString sFile, QString sReason);
    //! Hand. The same about a file that could not be read.
    static void execFileReadError(QString sFile, QString sReason);
    //! Hand. The same about a file that could not be written.
    static void execFileWriteError(QString sFile, QString sReason);
    //! Hand. The same box: the file sFile is a corrupt archive.
    static void execDataStreamErrorFile(QString sFile);
    //! Hand. The same box: reading an object of sClass failed; shows the
    //! stream's status as "ReadPastEnd" or "ReadCorruptData" (empty for any
    //! other status).
    static void execDataStreamErrorRead(QString sClass, unsigned int uVersion,
                                        unsigned int uLoadedVersion, QDataStream &stream);
    //! Hand. The same box: sFunction met an object version it does not know.
    static void execDataStreamErrorVersion(QString sClass, unsigned int uVersion,
                                           unsigned int uLoadedVersion, QString sFunction);
    //! @}

    //! \name Size-control and project-modification advisors
    //! No override cursor.
    //! @{

    //! Questions and warnings about size control (1 to 12); sArg fills in the
    //! zone list of 12. Returns the presentation's button code (Yes/No, or
    //! Apply/Abort for 11); 3, 4, 5 and 12 return their own value. 0 and other
    //! values show nothing and return -1.
    static int execScsAdvisor(enScsAdvisor eType, QString sArg);
    //! Notices about a new size or a resized project (0 to 13); sArg fills in
    //! the kind of zone of 12. The unsigned argument is not used. Other values
    //! show nothing.
    static void execCreateSizeAdvisor(enCreateSizeAdvisor eType, QString sArg, unsigned int uArg);
    //! What an automatic change did to the command zones: 0 lists the removed
    //! commands (sArg), 1 the changes named by uFlags (enModifyProjFlag; sArg
    //! not used). Help if "Dettagli" was clicked, otherwise Ok; other values
    //! show nothing and return 0.
    static int execModifyProjAdvisor(enModifyProjAdvisor eType, QString sArg, unsigned int uFlags);
    //! 0 asks whether the project is to enter the protected mode (Help, Yes or
    //! No); 1 shows an empty warning and returns 0. The other arguments are
    //! not used; other values show nothing and return 0.
    static int execProtectedModeAdvisor(enProtectedModeAdvisor eType, QString sArg,
                                        unsigned int uArg);
    //! @}

    /*!
        \name Plane editors' advisors and the module rules report

        Each advisor chooses a fixed Italian text by its value, translates it
        (context QNodrixMessageBox), fills %1, %2, %3 from its arguments with
        one QString::arg each, in that order, and shows it. Because the
        filling is sequential, an argument that itself holds a placeholder
        such as "%2" is filled by the next argument, as it always was. No
        advisor of this group sets an override cursor. Values without a text
        show nothing; the enumerations have a fixed int type, so any int can
        be passed.
    */
    //! @{

    //! Entering, leaving and editing the free command plane, for
    //! execFreeCmdModeAdvisor().
    enum enFreeCmdModeAdvisor : int {
        eFreeCmdMode_ConfirmEnter = 0, //!< "Continua" / "Annulla"
        eFreeCmdMode_EnterAlignedManual = 1, //!< "OK" / "Annulla"
        eFreeCmdMode_SaveChanges = 2, //!< "Salva" / "Esci" / "Annulla"
        eFreeCmdMode_ExitNotConfirmed = 3, //!< The free plane was not confirmed with OK; leave?
        eFreeCmdMode_ExitChangesNotApplied = 4, //!< Changes not applied; leave?
        eFreeCmdMode_ExitChangesNotConfirmed = 5, //!< Changes not confirmed with OK; leave?
        eFreeCmdMode_CloseReportFirst = 6, //!< Complete and close the report before leaving.
        eFreeCmdMode_SetupChanged = 7, //!< The project's set-up was changed; go on?
        eFreeCmdMode_ReportActive = 8, //!< Commands cannot be changed with the report active.
        eFreeCmdMode_NothingRecovered = 9, //!< No command was recovered; leave?
        eFreeCmdMode_UndoMoveFirst = 10, //!< Undo the move before removing a moved command.
        eFreeCmdMode_ScsInSizeControl = 11, //!< Under size control: the acquisition goes; go on?
        eFreeCmdMode_IncompatibleAccessories = 12, //!< %1 = sArg1
        eFreeCmdMode_PatColourTaken = 13, //!< %1 = sArg1
        eFreeCmdMode_PatNameTaken = 14 //!< %1 = sArg1, %2 = sArg2
    };

    //! Zones of 4 feeds within the scheme, for execProjectSchemeAdvisor();
    //! %1 = sArg (a number of steps).
    enum enSchemeAdvisor : int {
        eScheme_ZoneTooShort = 0, //!< A zone is too short.
        eScheme_ZonesTooClose = 1, //!< Two zones are too close.
        eScheme_LastZoneTooCloseToEnd = 2, //!< The last zone is too close to the end.
        eScheme_ZoneOverlaps = 3, //!< A zone may not overlap the existing ones.
        eScheme_CannotAddStep = 4, //!< The step cannot be added to the zone.
        eScheme_CannotRemoveStep = 5 //!< The step cannot be removed from the zone.
    };

    //! Borders of the skeleton, for execProjectSkelAdvisor(); %1 = sArg (a
    //! step number or a number of steps).
    //! The values do not follow the order of the texts: the last border's
    //! distance from the end of the drawing is 4.
    enum enSkelAdvisor : int {
        eSkel_BorderTooShort = 0, //!< A border is too short.
        eSkel_BordersTooClose = 1, //!< Two borders are too close.
        eSkel_CannotAddStep = 2, //!< The step cannot be added to the border.
        eSkel_CannotRemoveStep = 3, //!< The step cannot be removed from the border.
        eSkel_LastBorderTooCloseToEnd = 4, //!< The last border is too close to the end.
        eSkel_FirstBorderStart = 5, //!< The first border starts at step 1 or after step %1.
        eSkel_YarnGuideCheckOff = 6 //!< The border at step %1 has no yarn-guide check.
    };

    //! Automatic elaboration of the project, for execProjectElabAdvisor().
    //! 0 has no text.
    enum enProjElabAdvisor : int {
        eProjElab_None = 0, //!< Shows nothing.
        eProjElab_DiscardManualChanges = 1, //!< asks "Si" / "No"
        eProjElab_NoHookBorderAtStart = 2, //!< The article must start with a hook border.
        eProjElab_WorkingYarnsUndefined = 3, //!< The working yarns are not defined.
        eProjElab_KnitOffClampRules = 4, //!< the rules of 5 to 7 together
        eProjElab_KnitOffOneYarnGroup2 = 5, //!< %1 = sArg1 (feed)
        eProjElab_KnitOffTwoYarnsBoth = 6, //!< %1 = sArg1 (feed)
        eProjElab_KnitOffTwoYarnsFifthFeed = 7, //!< Two yarns on the fifth feed.
        eProjElab_StitchNotInPat = 8 //!< %1 = sArg1 (stitch), %2 = sArg2 (pattern)
    };

    //! Editing the command plane, for execCommandPlaneAdvisor(); %1 = sArg.
    //! 0 has no text.
    enum enCommandPlaneAdvisor : int {
        eCommandPlane_None = 0, //!< Shows nothing.
        eCommandPlane_NoStitchZoneOnStep = 1, //!< No stitch zone can be inserted on the step.
        eCommandPlane_NoActiveFeeders = 2, //!< No active feeders %1 in the zone.
        eCommandPlane_SinkerDownWithHooks = 3, //!< Sinker lowered with hooks active at step %1.
        eCommandPlane_NoSinkerCommandOnStep = 4, //!< The sinker command cannot go on the step.
        eCommandPlane_PartialHookReturnWithHookExit = 5, //!< Partial hook return with hook exit.
        eCommandPlane_MotorSinkerWithHooks = 6, //!< Step %1: motorised sinker with hooks active.
        eCommandPlane_NoMotorSinkerOnStep = 7, //!< The motorised sinker cannot go on the step.
        eCommandPlane_NoEjectorStopOnStep = 8 //!< The ejector stop cannot go on the step.
    };

    //! Body planes and unbalance limits, for execBodyPlaneAdvisor(); %1, %2,
    //! %3 = nArg1, nArg2, nArg3 in decimal. 0 has no text.
    enum enBodyPlaneAdvisor : int {
        eBodyPlane_None = 0, //!< Shows nothing.
        eBodyPlane_ColourNotAssigned = 1, //!< plane %1, colour %2
        eBodyPlane_NoStitchZones = 2, //!< No stitch zones.
        eBodyPlane_NoBodyMapZones = 3, //!< No BodyMap feeder zones.
        eBodyPlane_NoBodyShapeZones = 4, //!< No BodyShape feeder zones.
        eBodyPlane_NoStitchZoneForStep = 5, //!< No stitch zone for step %1.
        eBodyPlane_NoBodyMapZoneForStep = 6, //!< No BodyMap feeder zone for step %1.
        eBodyPlane_NoBodyShapeZoneForStep = 7, //!< No BodyShape feeder zone for step %1.
        eBodyPlane_MotorBelowMinimum = 8, //!< motor %1, course %2, needle %3
        eBodyPlane_MotorAboveMaximum = 9, //!< As 8, above the maximum.
        eBodyPlane_FeederBelowMinimum = 10, //!< feeder %1, course %2, needle %3
        eBodyPlane_FeederAboveMaximum = 11 //!< As 10, above the maximum.
    };

    //! Free command plane. Values 6, 8, 10, 13 and 14 warn with "Chiudi" and
    //! return 0. The others ask with an information box of their own and
    //! return Yes, No or Ignore (as int): 0 gives Yes for "Continua", 1 gives No
    //! for "OK" (on purpose), 2 gives Yes for "Salva" and No for "Esci", the
    //! "Si"/"No" questions give Yes for "Si"; any other end of the box (Escape,
    //! "Annulla", the window closed) gives Ignore for 0, 1 and 2 and No for the
    //! rest. Values outside 0..14 show nothing and return -1.
    static int execFreeCmdModeAdvisor(enFreeCmdModeAdvisor eType, QString sArg1, QString sArg2);

    //! Warns with "Chiudi" for values 0..5; shows nothing otherwise.
    static void execProjectSchemeAdvisor(enSchemeAdvisor eType, QString sArg);

    //! Warns with "Chiudi" for values 0..6; shows nothing otherwise.
    static void execProjectSkelAdvisor(enSkelAdvisor eType, QString sArg);

    //! Value 1 asks with execWarning() and returns its answer (Yes or No);
    //! values 2..8 warn with "Chiudi" and return No; any other value shows
    //! nothing and returns No.
    static StandardButton execProjectElabAdvisor(enProjElabAdvisor eType, QString sArg1,
                                                 QString sArg2);

    //! Warns with "Chiudi" for values 1..8; shows nothing otherwise.
    static void execCommandPlaneAdvisor(enCommandPlaneAdvisor eType, QString sArg);

    //! Warns with "Chiudi" for values 1..11; shows nothing otherwise. Always
    //! returns 0.
    static int execBodyPlaneAdvisor(enBodyPlaneAdvisor eType, int nArg1, int nArg2, int nArg3);

    //! Shows the explanation of a violated knitting rule. slRule holds the
    //! rule's code (entry 0, a decimal number 1..65, read with toInt in base
    //! 10) and the rule's k parameters (entry n fills %n; entries beyond k are
    //! ignored). The box is an information box at least 500 pixels wide with
    //! "Dettagli" and "Chiudi", neither of them default; both just close it.
    //! Having no escape button, the box ignores Escape and the title bar's
    //! close: only its buttons (or Enter) end it.
    //! A code outside 1..65, or an entry 0 that is not a number, shows the box
    //! with an empty text. Missing entries read as empty strings: a list
    //! shorter than k + 1 fills the remaining placeholders with nothing, and an
    //! empty list shows the empty box. The list is not changed.
    static void execModuleRulesAdvisor(QStringList &slRule);
    //! @}

private:
    QString m_sMsg;
    QWidget *m_pParent; // kept, not used by any presentation
};

#endif // QNODRIXMESSAGEBOX_H
