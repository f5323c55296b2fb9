#ifndef QNODRIXMESSAGEBOX_H
#define QNODRIXMESSAGEBOX_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QString>
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

private:
    QString m_sMsg;
    QWidget *m_pParent; // kept, not used by any presentation
};

#endif // QNODRIXMESSAGEBOX_H
