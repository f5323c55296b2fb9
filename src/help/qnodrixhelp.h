#ifndef QNODRIXHELP_H
#define QNODRIXHELP_H

#include "ndxcom_export.h"
#include "ndxcom_global.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

/*!
    Help topics of the suite: the fixed table that gives every dialog class
    its help number, the machine's help index (HelpMac.ini in the machine's
    help folder, lines of key=value, read as UTF-8 under Qt 5 and Qt 6
    alike) and the opening of help documents in the active language.

    Create one object once the settings and the language are in place: the
    machine folder, the help-info switch and the language folder are read at
    construction and fixed for the object's life.

    Like every class of the library it also offers trUtf8(), the Qt 4 name of
    tr(), under Qt 6, where Q_OBJECT no longer declares it.

    \headerfile qnodrixhelp.h <QNodrixHelp>
*/
class NDXCOM_EXPORT QNodrixHelp : public QObject
{
    Q_OBJECT
    NDXCOM_TR_FUNCTIONS

public:
    //! Reads the machine's help folder, the help-info switch and the language,
    //! fills the topic table and reads the help index. An index that cannot be
    //! read is reported with a warning box; the object stays usable with an
    //! empty index.
    QNodrixHelp();
    //! Destroys the object and its tables.
    ~QNodrixHelp() override;

    //! The help number of a dialog class ("3.2.1.0"), empty for a class
    //! outside the table.
    QString getButHelpString(QString className);
    //! The "EnblHelpInfo" switch as it stood when the object was built.
    //! Despite the name it returns the switch, not a number: the Qt 4 name
    //! is kept.
    bool getButHelpNumber();
    //! Opens the help document of `topic` with the desktop's handler for
    //! file: addresses. An empty topic opens nothing; a topic the index does
    //! not hold opens the language folder. So does an index value that is not
    //! a document (htm, html, pdf, chm, txt) inside the language folder: help
    //! never hands a program, script, shortcut or outside path to the desktop.
    void display(QString topic);

private:
    void init();

protected:
    // Fixed once the constructor has run. Open to subclasses, like the
    // dictionary of QNodrixCom, so that tools can show what was read.
    QString m_sHelpPath; //!< machinePath() + machineHelpFolder()
    QString m_sHelpLanguage; //!< language() + "/"
    bool m_bHelpInfo; //!< The "EnblHelpInfo" switch; getButHelpNumber().
    QHash<QString, QString> m_hashHelpNumber; //!< dialog class -> help number
    QHash<QString, QString> m_hashHelpFile; //!< the help index, key -> document
};

#endif // QNODRIXHELP_H
