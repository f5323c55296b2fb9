#include "qnodrixmessagebox.h"
#include "qnodrixmessagebox_p.h"

// The module rules report: the explanation of each knitting rule that the
// checking code of the suite reports as a coded record.

using namespace NdxComMessages;

namespace {

// A rule: its code, the number k of parameters its text uses (%1 to %k, filled
// from the record's entries 1 to k) and its text.
struct Rule
{
    int code;
    int parameters;
    const char *text;
};

// Code 1 alone has no "Attenzione:" heading. Code 10 holds the character
// U+0092 where an apostrophe belongs: the text was always stored that way and
// the catalogues are keyed by it, so it stays.
const Rule rules[] = {
    {1, 2,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro")},
    {2, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 "
                       "prevedono movimenti di camme.\n"
                       "Tali movimenti sono possibili solo se questi punti maglia non sono sullo "
                       "stesso rango di maglia.\n"
                       "Per procedere è necessario modificare uno dei due pat")},
    {3, 4,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Alcuni punti maglia utilizzati nel pat %1 e nel pat %2\n"
         "sulla caduta %3 prevedono movimenti di camme.\n"
         "Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.\n"
         "Per procedere è necessario modificare uno dei due pat")},
    {4, 4,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.\n"
         "Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini\n"
         "E' necessario che fra questi movimenti vi siano almeno %4 passo(i).\n"
         "Per procedere è necessario modificare uno dei due pat")},
    {5, 4,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.\n"
         "Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini\n"
         "E' necessario che fra questi movimenti vi siano almeno %4 passo(i).\n"
         "Per procedere è necessario modificare uno dei due pat")},
    {6, 5,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il Pat %1 ed il Pat %2  richiedono:\n"
                       "- cambi Posizione del Guidafilo %3 gruppo %4\n"
                       "E' possibile se fra questi cambi\n"
                       "ci sono almeno %5 aghi di distanza.\n"
                       "E' necessario modificare il Disegno !")},
    {7, 2,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.\n"
         "Tali movimenti non sono possibili sullo stesso rango di maglia.\n"
         "Per procedere è necessario modificare uno dei due pat")},
    {8, 2,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.\n"
         "Tali entrate o uscite non sono possibili sullo stesso rango di maglia.\n"
         " Per procedere è necessario modificare uno dei due pat")},
    {9, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il pat %1 necessita di entrata e/o uscita di guidafili.\n"
                       "Tali cambi non sono possibili in presenza di camma di trattenuto.\n"
                       "Per procedere è necessario modificare il pat")},
    {10, 0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel Disegno sono presenti Punti Maglia:\n"
                       "Flottato + Fuori Lavoro + Trattenuto.\n"
                       "E\u0092 necessario eliminare uno dei tre !")},
    {11, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Dal Pat %1 al Pat %2 è previsto : \n"
                       "- entrata/uscita/cambio di Guidafilo\n"
                       "Questo è possibile solo nel Primo Transfer.\n"
                       "E' necessario modificare i Pat !")},
    {12, 0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel Primo Transfer è previsto : \n"
                       "- entrata/uscita/cambio di Guidafilo\n"
                       "Questo è possibile solo se c'è il\n"
                       "trasferimento di Tutti i Settori.\n"
                       "E' necessario modificare Disegno o Pat !")},
    {13, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Dal Pat %1 al Pat %2 c'è un cambio di guidafili : \n"
                       "- è possibile cambiare il guidafilo 1 con il 2 o il 3\n"
                       "- è possibile cambiare il guidafilo 2 con il 3\n"
                       "- altre sequenze non sono possibili\n"
                       "E' necessario modificare i Pat !")},
    {14, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Guidafilo N.%1 assegnato al primo Pat applicato :\n"
                       "deve essere mantenuto in Tutti i Pat successivi !\n"
                       "E' necessario modificare Pat successivi !")},
    {15, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 sulla caduta %2  sono presenti :\n"
                       "- entrata-uscita-cambio di guidafili\n"
                       "- fine movimento entrata camme Trattenuto/Scaricato\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti")},
    {16, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 (passo 3 carico uncini) sulla caduta %2\n"
                       "  sono presenti :\n"
                       "- entrata-uscita-cambio di guidafili\n"
                       "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
                       "perchè troppo ravvicinati.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti")},
    {17, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :\n"
                       "- entrata-uscita-cambio di guidafili\n"
                       "- camme Trattenuto/Scaricato che richiedono una uscita parziale\n"
                       "Tali movimenti non sono possibili sullo stesso Rango di Maglia\n"
                       "perchè troppo ravvicinati.\n"
                       "Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti")},
    {18, 2,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "L'offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè\n"
         "dall'ago di inizio all'ago di fine del(i) colore(i) ci sono meno di %2 aghi di "
         "distanza.\n"
         "In alternativa è necessario modificare il disegno!")},
    {19, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sulla caduta %1 il \"Disegno Nitido\" richiede\n"
                       "il guidafilo 6 in tutto il progetto.\n"
                       "E' necessario modificare Disegno o Pat!")},
    {20, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il Pat '%1' ed il Pat '%2' richiedono :\n"
                       "- uscita ed entrata guidafili\n"
                       "E' possibile se fra questi cambi\n"
                       "ci sono almeno %3 aghi di distanza\n"
                       "E' necessario modificare il Disegno!")},
    {21, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel primo e ultimo rango della caduta %1\n"
                       "in \"Disegno Nitido\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %2\n"
                       "E' necessario modificare il Disegno!")},
    {22, 0,
     QT_TRANSLATE_NOOP(
         "QNodrixMessageBox",
         "Attenzione:\n"
         "Sullo stesso rango di maglia:\n"
         "non è possibile associare PAT\n"
         "di \"Disegno Nitido\" con altri PAT.E' necessario modificare Disegno o Pat!")},
    {23, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nei passi %1 del carico uncini sulla caduta %2\n"
                       "in \"Disegno Nitido\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %3\n"
                       "E' necessario modificare il Disegno!")},
    {24, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 del carico uncini sulla caduta %2\n"
                       "in \"Disegno Nitido\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %3\n"
                       "E' necessario modificare il Disegno!")},
    {25, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nei passi 1 e 2 dello scarico uncini sulla caduta %1\n"
                       "in \"Disegno Nitido\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %2\n"
                       "E' necessario modificare il Disegno!")},
    {26, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo 3 dello scarico uncini sulla caduta %1\n"
                       "in \"Disegno Nitido\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %2\n"
                       "E' necessario modificare il Disegno!")},
    {27, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sulla caduta %1 il \"Colore\" richiede\n"
                       "il guidafilo 1-2-3 in tutto il progetto.\n"
                       "E' necessario modificare Disegno o Pat!")},
    {28, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il Pat '%1' ed il Pat '%2' richiedono :\n"
                       "- uscita ed entrata guidafili colore\n"
                       "E' possibile se fra questi cambi\n"
                       "ci sono almeno %3 aghi di distanza\n"
                       "E' necessario modificare il disegno!")},
    {29, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "nel primo rango della caduta %3\n"
                       "nell'area colore non è possibile aggiungere il colore.\n"
                       "E' necessario modificare il disegno!")},
    {30, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "nell'ultimo rango della caduta %3\n"
                       "nell'area colore non è possibile aggiungere il colore.\n"
                       "E' necessario modificare il disegno!")},
    {31, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "NON è possibile all'interno della stessa modalità 'NITIDO'.\n"
                       "E' necessario modificare il disegno!")},
    {32, 4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "Fra modalità 'NITIDO' questo e' possibile solo dopo %4 passi.\n"
                       "E' necessario modificare il disegno!")},
    {33, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "NON è possibile all'interno della stessa modalità 'COLORE'.\n"
                       "E' necessario modificare il disegno!")},
    {34, 4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di camme\n"
                       "Fra modalità 'COLORE' questo e' possibile solo dopo %4 passi.\n"
                       "E' necessario modificare il disegno!")},
    {35, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di guidafili\n"
                       "NON è possibile all'interno della stessa modalità 'NITIDO'.\n"
                       "E' necessario modificare il disegno!")},
    {36, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passaggio tra il Pat '%1' ed il Pat '%2'\n"
                       "della caduta %3 è richiesto un movimento di guidafili\n"
                       "NON è possibile all'interno della stessa modalità 'COLORE'.\n"
                       "E' necessario modificare il disegno!")},
    {37, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sullo stesso rango di maglia non è possibile associare :\n"
                       "PAT 'COLORE' (%1) con altri PAT 'COLORE' di modalità diversa (%2).\n"
                       "E' necessario modificare Disegno o Pat!")},
    {38, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sullo stesso rango di maglia non è possibile associare :\n"
                       "PAT 'COLORE' (%1) con altri PAT NON 'COLORE' (%2).\n"
                       "E' necessario modificare Disegno o Pat!")},
    {39, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nei passi %1 del carico uncini sulla caduta %2\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %3\n"
                       "E' necessario modificare il Disegno!")},
    {40, 4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %4\n"
                       "E' necessario modificare il Disegno!")},
    {41, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo %1 (passo 3 del carico uncini) sulla caduta %2\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\n"
                       "in presenza di :\n"
                       "- entrate/uscite/cambi di guidafili\n"
                       "Vedi Pat : %3\n"
                       "E' necessario modificare il Disegno!")},
    {42, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nei passi 1 e 2 dello scarico uncini sulla caduta %1\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %2\n"
                       "E' necessario modificare il Disegno!")},
    {43, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2\n"
                       "in \"Modo Colore\" non è possibile aggiungere il colore.\n"
                       "Vedi Pat : %3\n"
                       "E' necessario modificare il Disegno!")},
    {44, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con altri PAT di modalità incompatibile (%3).\n"
                       "E' necessario modificare Disegno o Pat!")},
    {45, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con PAT (%3) con guidafili incompatibili.\n"
                       "E' necessario modificare Disegno o Pat!")},
    {46, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Sullo stesso rango di maglia %1 non è possibile associare :\n"
                       "PAT 'SPECIALE' (%2) con PAT (%3) con configurazione camme incompatibili.\n"
                       "E' necessario modificare Disegno o Pat!")},
    {47, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Passaggio da PAT 'SPECIALE' (%1) rango %2 a PAT (%3)\n"
                       "e' possibile solo dopo almeno un rango completo in modalità 'SPECIALE'.\n"
                       "E' necessario modificare Disegno o Pat!")},
    {48, 4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Dal PAT %1 al PAT %2 rango %3 è richiesta :\n"
                       "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %4 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!")},
    {49, 4,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Dal PAT %1 al PAT %2 rango %3 è richiesta :\n"
                       "- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %4 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!")},
    {50, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :\n"
                       "- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.\n"
                       "E' possibile se ci sono almeno %3 aghi di distanza!\n"
                       "E' necessario modificare il Disegno!")},
    {51, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Rango %1 : Dal PAT modalità SPECIALE (%2)\n"
                       " al PAT modalità SPECIALE (%3) è richiesto :\n"
                       "- Cambio di guidafili 2 e 3 del GR1.\n"
                       "Non e' possibile sullo stesso rango di maglia!\n"
                       "Per continuare e' necessario modificare Disegno o PAT!")},
    {52, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Rango %1 : Dal PAT modalità SPECIALE (%2)\n"
                       " al PAT modalità SPECIALE (%3) è richiesto :\n"
                       "- Cambio di guidafili GR2/GR1.\n"
                       "E' possibile solo se nell'ultimo rango di maglia :\n"
                       "- Tutti gli aghi sono in modalità SPECIALE\n"
                       "Per continuare e' necessario modificare Disegno o PAT!")},
    {53, 3,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)\n"
                       "con presenza di PAT in modalità SPECIALE (%3) :\n"
                       "- Tutti gli aghi devono essere in modalità SPECIALE\n"
                       "Per continuare e' necessario modificare Disegno o PAT!")},
    {54, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Usata \"Camma Rientro Parziale Uncini\" nel Bordo n. %1.\n"
                       "Passo di movimento incompatibile con la dimensione del bordo.\n"
                       "Anticipare il movimento di %2 passo(i) o ampliare il bordo!")},
    {55, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il PAT %1 a 4 cadute alla linea %2\n"
                       "non può essere usato in una zona a 8 cadute\n"
                       "E' necessario modificare Disegno o Pat!")},
    {56, 2,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Il PAT %1 a 8 cadute alla linea %2\n"
                       "non può essere usato in una zona a 4 cadute\n"
                       "E' necessario modificare Disegno o Pat!")},
    {57, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!")},
    {58, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Negli ultimi 3 passi prima di passare da 8 a 4 cadute:\n"
                       "NON è consentita la presenza di Modalità Colore o Nitido!\n"
                       "E' necessario modificare Disegno o Pat!")},
    {59, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Una zona a 4 cadute o termina all'ultimo passo o %1 passi prima!")},
    {60, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Negli ultimi 3 passi prima di passare da 4 a 8 cadute:\n"
                       "NON è consentita la presenza di Modalità Colore o Nitido!\n"
                       "E' necessario modificare Disegno o Pat!")},
    {61, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                       "Non è consentito l'inizio bordo con uncini:\n"
                       "- negli ultimi 3 passi della zona a 8 cadute !\n"
                       "- nel primo passo della zona a 4 cadute !\n"
                       "E' necessario risolvere il conflitto!")},
    {62, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Nel passaggio zona 8 cadute a zona 4 cadute\n"
                       "Non è consentito la fine bordo con uncini\n"
                       "negli ultimi 3 passi della zona a 8 cadute !\n"
                       "E' necessario risolvere il conflitto!")},
    {63, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                       "Non è consentito la fine bordo con uncini\n"
                       "negli ultimi 2 passi della zona a 4 cadute !\n"
                       "E' necessario risolvere il conflitto!")},
    {64, 1,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione al passo %1:\n"
                       "Nel passaggio zona 4 cadute a zona 8 cadute\n"
                       "Non è consentito l'inizio bordo con uncini:\n"
                       "- negli ultimi 2 passi della zona a 4 cadute !\n"
                       "- nel primo passo della zona a 8 cadute !\n"
                       "E' necessario risolvere il conflitto!")},
    {65, 0,
     QT_TRANSLATE_NOOP("QNodrixMessageBox",
                       "Attenzione:\n"
                       "Non è consentito avere la Modalità Fili 0:\n"
                       "- nel 1° passo dopo il carico maglia !\n"
                       "- nell'ultimo passo prima dello scarico maglia !\n"
                       "Per continuare è necessario modificare il Disegno !")},
};

// Information box at least 500 pixels wide, so that the long rule texts are
// not squeezed. Neither button is remembered: both simply close the box.
constexpr BoxShape rulesBox
    = BoxShape(QMessageBox::Information)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Dettagli"), QMessageBox::NoRole)
          .button(QT_TRANSLATE_NOOP("QNodrixMessageBox", "Chiudi"), QMessageBox::NoRole)
          .minimumWidth(500);

} // namespace

void QNodrixMessageBox::execModuleRulesAdvisor(QStringList &slRule)
{
    // QStringList::value() reads a missing entry as an empty string: a record
    // shorter than its rule needs fills the missing placeholders with
    // nothing, and an empty record has code 0.
    const int code = slRule.value(0).toInt(nullptr, 10);

    QString text;
    for (const Rule &rule : rules) {
        if (rule.code != code)
            continue;
        QStringList parameters;
        for (int n = 1; n <= rule.parameters; ++n)
            parameters << slRule.value(n);
        text = fillText(rule.text, parameters);
        break;
    }

    runBox(rulesBox, text);
}
