#include "qnodrixcom.h"

#include "registry/qnodrixregistry.h"

namespace {
// An element of a list, or an empty string where the list has none: callers
// pass numbers from files and settings, which may be anything.
QString elementOrEmpty(const QStringList &list, int index)
{
    return index >= 0 && index < list.size() ? list.at(index) : QString();
}
} // namespace

// ---------------------------------------------------------------------------
// Languages
// ---------------------------------------------------------------------------
QString QNodrixCom::language()
{
    // The settings keep a number of QNodrixRegistry::eLanguageType; English is
    // the answer for every number without a code of its own.
    switch (static_cast<int>(QNodrixRegistry::keyLanguage())) {
    case QNodrixRegistry::eLanguageType_it:
        return m_sLanguageIT;
    case QNodrixRegistry::eLanguageType_es:
        return m_sLanguageES;
    case QNodrixRegistry::eLanguageType_zh:
        return m_sLanguageZH;
    case QNodrixRegistry::eLanguageType_szh:
        return m_sLanguageSZH;
    default:
        return m_sLanguageEN;
    }
}

// These read the list, not the m_sLanguage... members: an application that
// edits the list through refLanguages() changes what they answer.
QString QNodrixCom::languageIt()
{
    return elementOrEmpty(m_slLanguages, eLanguage_it);
}

QString QNodrixCom::languageEn()
{
    return elementOrEmpty(m_slLanguages, eLanguage_en);
}

QString QNodrixCom::languageZh()
{
    return elementOrEmpty(m_slLanguages, Language_zh);
}

QString QNodrixCom::languageSzh()
{
    return elementOrEmpty(m_slLanguages, Language_szh);
}

QString QNodrixCom::languageEs()
{
    return elementOrEmpty(m_slLanguages, Language_es);
}

// ---------------------------------------------------------------------------
// Plane palette
// ---------------------------------------------------------------------------
void QNodrixCom::initPalettePlaneDefault()
{
    constexpr int nColors = 256;
    m_palettePlaneDefault.resize(nColors);
    m_palettePlaneDefault[0] = 0xFF000000u;
    // A light grey base whose blue channel is the index, so that a default
    // colour tells which entry it is.
    for (int i = 1; i < nColors - 1; ++i)
        m_palettePlaneDefault[i] = 0xFFDEDE00u + static_cast<unsigned int>(i);
    m_palettePlaneDefault[nColors - 1] = 0xFFFFFFFFu;
}

QVector<unsigned int> &QNodrixCom::palettePlaneDefault()
{
    return m_palettePlaneDefault;
}

// ---------------------------------------------------------------------------
// Translatable names
// ---------------------------------------------------------------------------
void QNodrixCom::intTranslatableStrings()
{
    m_sCylinderPlane = tr("Piano cilindro");
    m_sBodyKnitPlane = tr("Piano BodyKnit");
    m_sBodyMapPlane = tr("Piano BodyMap");
    m_sBodyShapePlane = tr("Piano BodyShape");
    m_sStitchPlane = tr("Piano maglia");
    m_sFingerPlane = tr("Piano guidafili");
    m_sCommandPlane = tr("Piano comandi");

    // Appended, never cleared: applications that call this again after a
    // change of language get a second set behind the first, and the lookups
    // keep answering from the first. The index is enModuleAssocOperation.
    m_slModuleOperation << tr("Inserisci Pat") << tr("Sostituisci Pat") << tr("Modifica Pat")
                        << tr("Copia Pat") << tr("Incolla Pat") << tr("Salva con Nome Pat")
                        << tr("Rimuovi Pat") << tr("Visualizza Pat") << tr("Sostituisci GDF");

    // The index is the number of yarns.
    m_slFili << tr("0 Fili") << tr("1 Filo") << tr("2 Fili") << tr("3 Fili");
}

QString QNodrixCom::nameCylinderPlane()
{
    return m_sCylinderPlane;
}

QString QNodrixCom::nameBodyKnitPlane()
{
    return m_sBodyKnitPlane;
}

QString QNodrixCom::nameBodyMapPlane()
{
    return m_sBodyMapPlane;
}

QString QNodrixCom::nameBodyShapePlane()
{
    return m_sBodyShapePlane;
}

QString QNodrixCom::nameStitchPlane()
{
    return m_sStitchPlane;
}

QString QNodrixCom::nameFingerPlane()
{
    return m_sFingerPlane;
}

QString QNodrixCom::nameCommandPlane()
{
    return m_sCommandPlane;
}

QString QNodrixCom::moduleAssocOperation(enModuleAssocOperation operation)
{
    return elementOrEmpty(m_slModuleOperation, static_cast<int>(operation));
}

QString QNodrixCom::stringFili(int yarns)
{
    return elementOrEmpty(m_slFili, yarns);
}
