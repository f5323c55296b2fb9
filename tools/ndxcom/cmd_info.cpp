#include "command.h"

#include <QNodrixCom>

#include <QtCore/QPair>

namespace {

QString show(const QString &s)
{
    return QLatin1Char('"') + s + QLatin1Char('"');
}
QString show(QChar c)
{
    return QLatin1Char('\'') + c + QLatin1Char('\'');
}
QString show(int v)
{
    return QString::number(v);
}
QString show(float v)
{
    return QString::number(double(v));
}
QString show(double v)
{
    return QString::number(v);
}
QString show(unsigned int v)
{
    return QStringLiteral("0x%1 (%2)").arg(v, 8, 16, QLatin1Char('0')).arg(v);
}
QString show(const QColor &c)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(c.red())
        .arg(c.green())
        .arg(c.blue())
        .arg(c.alpha());
}

int runInfo(const QStringList &arguments)
{
    CommandParser parser("info");
    const QCommandLineOption helpOption(QStringList {QStringLiteral("h"), QStringLiteral("help")});
    parser.addOption(helpOption);
    if (!parser.parse(arguments))
        return usageError("info", parser.errorText(), QStringLiteral("ndxcom info"));
    if (parser.isSet(helpOption)) {
        out() << "usage: ndxcom info\n\nPrints the library's identity and every entry of its "
                 "dictionary as 'name = value'."
              << Qt::endl;
        return ExitOk;
    }
    if (!parser.positionalArguments().isEmpty())
        return usageError("info", QStringLiteral("takes no arguments"),
                          QStringLiteral("ndxcom info"));

    out() << "# NdxCom " << QNodrixCom::productSoftware() << " of " << QNodrixCom::productDate()
          << "\n";
    const QList<QPair<const char *, QString>> identity = {
        {"productSoftwareVersion", show(QNodrixCom::productSoftwareVersion())},
        {"productSoftwareBuild", QString::number(QNodrixCom::productSoftwareBuild())},
        {"productSoftwareMMR", show(QNodrixCom::productSoftwareMMR())},
        {"productSoftwareMMRB", show(QNodrixCom::productSoftwareMMRB())},
        {"productSoftware", show(QNodrixCom::productSoftware())},
        {"productDate", show(QNodrixCom::productDate())},
        {"nodrixSoftwareVersion", show(QNodrixCom::nodrixSoftwareVersion())},
        {"nodrixDate", show(QNodrixCom::nodrixDate())},
    };
    for (const auto &row : identity)
        out() << row.first << " = " << row.second << '\n';

    out() << "\n# Library keys\n";
    for (const char *key : {"Nodrix", "NdxExt", "NdxDoc", "NdxMac", "NdxAut", "NdxCod", "NdxCom",
                            "NdxImg", "NdxLib", "Tools"}) {
        const QString k = QString::fromLatin1(key);
        out() << "getNdxVersion(" << k << ") = " << show(QNodrixCom::getNdxVersion(k)) << '\n'
              << "getNdxDate(" << k << ") = " << show(QNodrixCom::getNdxDate(k)) << '\n';
    }

    out() << "\n# Dictionary\n";
    const QList<QPair<const char *, QString>> dictionary = {
        {"applicationName", show(QNodrixCom::applicationName())},
        {"nodrixInterface", show(QNodrixCom::nodrixInterface())},
        {"nodrixBrand", show(QNodrixCom::nodrixBrand())},
        {"nodrixIcon", show(QNodrixCom::nodrixIcon())},
        {"pathGlobalIcon", show(QNodrixCom::pathGlobalIcon())},
        {"pathCmdIcon", show(QNodrixCom::pathCmdIcon())},
        {"moreCommandsIcon", show(QNodrixCom::moreCommandsIcon())},
        {"keyImageText", show(QNodrixCom::keyImageText())},
        {"appExeFolder", show(QNodrixCom::appExeFolder())},
        {"appExeDshellFolder", show(QNodrixCom::appExeDshellFolder())},
        {"kadrelShellProcess", show(QNodrixCom::kadrelShellProcess())},
        {"scsImportProcess", show(QNodrixCom::scsImportProcess())},
        {"projectFilesExt", show(QNodrixCom::projectFilesExt())},
        {"projectFilesFilter", show(QNodrixCom::projectFilesFilter())},
        {"concatenateFilesExt", show(QNodrixCom::concatenateFilesExt())},
        {"concatenateFilesFilter", show(QNodrixCom::concatenateFilesFilter())},
        {"moduleCylFilesExt", show(QNodrixCom::moduleCylFilesExt())},
        {"moduleCylFilesFilter", show(QNodrixCom::moduleCylFilesFilter())},
        {"moduleMglFilesExt", show(QNodrixCom::moduleMglFilesExt())},
        {"moduleMglFilesFilter", show(QNodrixCom::moduleMglFilesFilter())},
        {"caricoFilesExt", show(QNodrixCom::caricoFilesExt())},
        {"scsFilesExt", show(QNodrixCom::scsFilesExt())},
        {"freeModeFilesExt", show(QNodrixCom::freeModeFilesExt())},
        {"freeModeFilesFilter", show(QNodrixCom::freeModeFilesFilter())},
        {"freeModeCodePrefix", show(QNodrixCom::freeModeCodePrefix())},
        {"logFilesExt", show(QNodrixCom::logFilesExt())},
        {"devDisFilesExt", show(QNodrixCom::devDisFilesExt())},
        {"kd5DISFilesExt", show(QNodrixCom::kd5DISFilesExt())},
        {"sockFilesExt", show(QNodrixCom::sockFilesExt())},
        {"scoFilesExt", show(QNodrixCom::scoFilesExt())},
        {"scnFilesExt", show(QNodrixCom::scnFilesExt())},
        {"pskFilesExt", show(QNodrixCom::pskFilesExt())},
        {"codeFilesExt", show(QNodrixCom::codeFilesExt())},
        {"codeFilesXmlExt", show(QNodrixCom::codeFilesXmlExt())},
        {"corrFilesExt", show(QNodrixCom::corrFilesExt())},
        {"codeCnFilesExt", show(QNodrixCom::codeCnFilesExt())},
        {"lockFilesExt", show(QNodrixCom::lockFilesExt())},
        {"imageFilesExt", show(QNodrixCom::imageFilesExt())},
        {"prefixProjectDoc", show(QNodrixCom::prefixProjectDoc())},
        {"prefixModuleDoc", show(QNodrixCom::prefixModuleDoc())},
        {"machineConfigFile", show(QNodrixCom::machineConfigFile())},
        {"machineHelpFile", show(QNodrixCom::machineHelpFile())},
        {"machineCodingDataFile", show(QNodrixCom::machineCodingDataFile())},
        {"machineFilesExt", show(QNodrixCom::machineFilesExt())},
        {"machineFilesXmlExt", show(QNodrixCom::machineFilesXmlExt())},
        {"machineFilesLangPostfix", show(QNodrixCom::machineFilesLangPostfix())},
        {"machineFilesMsg", show(QNodrixCom::machineFilesMsg())},
        {"machineFilesMsgExt", show(QNodrixCom::machineFilesMsgExt())},
        {"machineFilesBinExt", show(QNodrixCom::machineFilesBinExt())},
        {"machineDataFolder", show(QNodrixCom::machineDataFolder())},
        {"machineResourceFolder", show(QNodrixCom::machineResourceFolder())},
        {"machineResCmdIcoFolder", show(QNodrixCom::machineResCmdIcoFolder())},
        {"machineResMglMapFolder", show(QNodrixCom::machineResMglMapFolder())},
        {"machineHelpFolder", show(QNodrixCom::machineHelpFolder())},
        {"machineCodeFolder", show(QNodrixCom::machineCodeFolder())},
        {"machineCodeDisFolder", show(QNodrixCom::machineCodeDisFolder())},
        {"machineCodeCodFolder", show(QNodrixCom::machineCodeCodFolder())},
        {"projectsDefFolder", show(QNodrixCom::projectsDefFolder())},
        {"repositoryDefFolder", show(QNodrixCom::repositoryDefFolder())},
        {"projectLinkDefFolder", show(QNodrixCom::projectLinkDefFolder())},
        {"projectArchFolder", show(QNodrixCom::projectArchFolder())},
        {"projectArchAppend", show(QNodrixCom::projectArchAppend())},
        {"machineKd5Dir", show(QNodrixCom::machineKd5Dir())},
        {"machineKd5ChainDir", show(QNodrixCom::machineKd5ChainDir())},
        {"machineKd5CodDir", show(QNodrixCom::machineKd5CodDir())},
        {"machineKd5DisDir", show(QNodrixCom::machineKd5DisDir())},
        {"machineKd5DisegniDir", show(QNodrixCom::machineKd5DisegniDir())},
        {"machineKd5DisegniDevDir", show(QNodrixCom::machineKd5DisegniDevDir())},
        {"machineKd5DisegniDbgDir", show(QNodrixCom::machineKd5DisegniDbgDir())},
        {"machineKd5CarcolMgl", show(QNodrixCom::machineKd5CarcolMgl())},
        {"machineKd5CarcolDevDis", show(QNodrixCom::machineKd5CarcolDevDis())},
        {"machineKd5CarcolDevDbg", show(QNodrixCom::machineKd5CarcolDevDbg())},
        {"machineKd5CarcolKadrel", show(QNodrixCom::machineKd5CarcolKadrel())},
        {"machineKd5DisCfgName", show(QNodrixCom::machineKd5DisCfgName())},
        {"machineKd5MachCodeName", show(QNodrixCom::machineKd5MachCodeName())},
        {"scsZoneKeyword", show(QNodrixCom::scsZoneKeyword())},
        {"scsVersKeyword", show(QNodrixCom::scsVersKeyword())},
        {"xmlTrue", show(QNodrixCom::xmlTrue())},
        {"xmlFalse", show(QNodrixCom::xmlFalse())},
        {"xmlParamDelimiter", show(QNodrixCom::xmlParamDelimiter())},
        {"cmdStripBlendFont", show(QNodrixCom::cmdStripBlendFont())},
        {"cmdStripBlendEndVal", show(QNodrixCom::cmdStripBlendEndVal())},
        {"namesInvalidChars", show(QNodrixCom::namesInvalidChars())},
        {"projectNameMaxLength", show(QNodrixCom::projectNameMaxLength())},
        {"planesMax", show(QNodrixCom::planesMax())},
        {"planesProject", show(QNodrixCom::planesProject())},
        {"colorsMax", show(QNodrixCom::colorsMax())},
        {"mglPntMax", show(QNodrixCom::mglPntMax())},
        {"patternRowsDef", show(QNodrixCom::patternRowsDef())},
        {"stitchViewMinZoomLevel", show(QNodrixCom::stitchViewMinZoomLevel())},
        {"cmdIconMinZoomLevel", show(QNodrixCom::cmdIconMinZoomLevel())},
        {"cmdIconMinZoomFactor", show(QNodrixCom::cmdIconMinZoomFactor())},
        {"cmdPlaneMinZoomLevel", show(QNodrixCom::cmdPlaneMinZoomLevel())},
        {"skelIconMinZoomLevel", show(QNodrixCom::skelIconMinZoomLevel())},
        {"scsIconMinZoomLevel", show(QNodrixCom::scsIconMinZoomLevel())},
        {"cmdStripFontFactor", show(QNodrixCom::cmdStripFontFactor())},
        {"opacityOne", show(QNodrixCom::opacityOne())},
        {"opacityHalf", show(QNodrixCom::opacityHalf())},
        {"buttonBlinkTime", show(QNodrixCom::buttonBlinkTime())},
        {"machineCodeEnvIdent", show(QNodrixCom::machineCodeEnvIdent())},
        {"colorHighLightLine", show(QNodrixCom::colorHighLightLine())},
        {"colorHighLightStep", show(QNodrixCom::colorHighLightStep())},
        {"colorHighLightRows", show(QNodrixCom::colorHighLightRows())},
        {"colorHighLightScheme", show(QNodrixCom::colorHighLightScheme())},
        {"colorHighLightSkel", show(QNodrixCom::colorHighLightSkel())},
        {"colorHighLightScs", show(QNodrixCom::colorHighLightScs())},
        {"colorStripSCS", show(QNodrixCom::colorStripSCS())},
        {"caricoFilesFilter", show(QNodrixCom::caricoFilesFilter())},
        {"scaricoFilesExt", show(QNodrixCom::scaricoFilesExt())},
        {"scaricoFilesFilter", show(QNodrixCom::scaricoFilesFilter())},
        {"languageApp", show(QNodrixCom::languageApp())},
        {"refLanguages", show(QNodrixCom::refLanguages().join(QLatin1Char(',')))},
        {"getNodrixAppVersion", show(QNodrixCom().getNodrixAppVersion())},
    };
    for (const auto &row : dictionary)
        out() << row.first << " = " << row.second << '\n';
    out().flush();
    return ExitOk;
}

Command::Registrar registrar("info", "print the library's identity and its whole dictionary",
                             Command::Console, runInfo);

} // namespace
