#include "qnodrixcom.h"

// Folder names carry no separator of their own (or a fixed one, see the
// dictionary); the variants below put the '/' where the caller needs it. They
// are joined at every call, never stored, so they follow the members.

namespace {
inline QChar slash()
{
    return QLatin1Char('/');
}
inline QString left(const QString &s)
{
    return slash() + s;
}
inline QString right(const QString &s)
{
    return s + slash();
}
inline QString both(const QString &s)
{
    return slash() + s + slash();
}
} // namespace

QString QNodrixCom::machineCodeFolderSl()
{
    return left(m_sMachineCodeFolder);
}

QString QNodrixCom::machineCodeFolderSr()
{
    return right(m_sMachineCodeFolder);
}

QString QNodrixCom::machineCodeFolderSlSr()
{
    return both(m_sMachineCodeFolder);
}

QString QNodrixCom::machineCodeDisFolderSl()
{
    return left(m_sMachineCodeDisFolder);
}

QString QNodrixCom::machineCodeDisFolderSr()
{
    return right(m_sMachineCodeDisFolder);
}

QString QNodrixCom::machineCodeDisFolderSlSr()
{
    return both(m_sMachineCodeDisFolder);
}

QString QNodrixCom::machineCodeCodFolderSl()
{
    return left(m_sMachineCodeCodFolder);
}

QString QNodrixCom::machineCodeCodFolderSr()
{
    return right(m_sMachineCodeCodFolder);
}

QString QNodrixCom::machineCodeCodFolderSlSr()
{
    return both(m_sMachineCodeCodFolder);
}

// The sibling application's root is a full path: it is only ever continued,
// so it has no Sl or SlSr form.
QString QNodrixCom::machineKd5DirSr()
{
    return right(m_sMachineKd5Dir);
}

QString QNodrixCom::machineKd5ChainDirSl()
{
    return left(m_sMachineKd5ChainDir);
}

QString QNodrixCom::machineKd5ChainDirSr()
{
    return right(m_sMachineKd5ChainDir);
}

QString QNodrixCom::machineKd5ChainDirSlSr()
{
    return both(m_sMachineKd5ChainDir);
}

QString QNodrixCom::machineKd5CodDirSl()
{
    return left(m_sMachineKd5CodDir);
}

QString QNodrixCom::machineKd5CodDirSr()
{
    return right(m_sMachineKd5CodDir);
}

QString QNodrixCom::machineKd5CodDirSlSr()
{
    return both(m_sMachineKd5CodDir);
}

QString QNodrixCom::machineKd5DisDirSl()
{
    return left(m_sMachineKd5DisDir);
}

QString QNodrixCom::machineKd5DisDirSr()
{
    return right(m_sMachineKd5DisDir);
}

// "StSr", not "SlSr": the applications call it by this name.
QString QNodrixCom::machineKd5DisDirStSr()
{
    return both(m_sMachineKd5DisDir);
}

QString QNodrixCom::makeGaugeDiamSubDir(int nGauge, int nDiameter)
{
    return QStringLiteral("%1-GG/%2-DIAM").arg(nGauge).arg(nDiameter);
}

QString QNodrixCom::makeConfigGaugeDiamPath(QString sBasePath, QString sCfgFolder, int nGauge,
                                            int nDiameter)
{
    const QString sCfg = QStringLiteral("/%1").arg(sCfgFolder);
    const QString sGauge = QStringLiteral("/%1-GG").arg(nGauge);
    const QString sDiam = QStringLiteral("/%1-DIAM").arg(nDiameter);

    const QString sBase = sBasePath.replace(QLatin1Char('\\'), slash());

    // Only the presence of the parts is tested, not their order or place:
    // a base that already names the configuration's gauge and diameter is
    // taken as it is, whatever follows.
    const int nCfgAt = sBase.indexOf(sCfg, 0, Qt::CaseSensitive);
    if (nCfgAt < 0)
        return sBase + sCfg + sGauge + sDiam;
    if (sBase.contains(sGauge, Qt::CaseSensitive) && sBase.contains(sDiam, Qt::CaseSensitive))
        return sBase;
    return sBase.left(nCfgAt) + sCfg + sGauge + sDiam;
}
