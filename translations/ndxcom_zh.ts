<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="it">
<context>
    <name>QFileSharing</name>
    <message>
        <source>Il progetto risulta in uso da:
Computer: %1	Utente: %2
Vuoi aprirlo con accesso in lettura ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Il progetto è aperto in sola lettura.
 Vuoi salvarlo cambiandogli il nome ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione: progetto in uso!!
Obbligatorio cambiargli il nome!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Il progetto è bloccato da:
Computer: %1.
Utente: %2.
Vuoi sbloccarlo ?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNodrixCom</name>
    <message>
        <source>Piano cilindro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano BodyKnit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano BodyMap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano BodyShape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano maglia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano guidafili</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piano comandi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inserisci Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sostituisci Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifica Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copia Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incolla Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva con Nome Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rimuovi Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visualizza Pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sostituisci GDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 Fili</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Filo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 Fili</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 Fili</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva con nome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classe:	%1
Versione:	%2
Versione caricata:	%3
Funzione:	%4

Messaggio:	%5
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informazione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
questo software macchina richiede sia installata 
la Piattaforma Nodrix versione %1 o superiore 
Non è possibile continuare senza aggiornare la Piattaforma !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continua</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Annulla</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salva</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esci</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Selezionando &apos;Continua&apos; si renderà possibile
entrare in modalità &apos;PIANO COMANDI LIBERO&apos; !
Si avverte che tale modalità è consigliata
ai soli UTENTI ESPERTI !!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Stai entrando sul &apos;Piano Comandi Manuale&apos; 
   ALLINEATO   al &apos;Piano Comandi Automatico&apos;:
le modifiche fatte al &apos;Piano Comandi Manuale&apos;
potranno essere recuperate.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il &apos;PIANO COMANDI LIBERO&apos; è stato modificato!.
Vuoi salvare le modifiche fatte ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Modalità &apos;PIANO COMANDI LIBERO&apos;
   NON CONFERMATA CON OK ! 
Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
NON sono state applicate ! 
Continuando verranno PERSE. Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
     NON sono state confermate con Ok! 
Continuando verranno Perse. Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Prima di uscire dalla modalità &apos;PIANO COMANDI LIBERO&apos;
è necessario completare e chiudere la finestra Report !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sono state rilevate modifiche al Setup del progetto !
L&apos;ingresso in modalità Piano Comandi Libero comporta:
- riallineamento del Piano Comandi all&apos;ultima elaborazione automatica
- cancellazione dei comandi manuali non congruenti con i dati di Setup
Vuoi continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile agire sui comandi con il Report attivo!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
NESSUN comando è stato recuperato.
Uscendo non sarà più possibile alcun recupero.
Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Per eliminare un comando spostato
è necessario prima annullare lo spostamento!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS &apos;Piano Comandi Manuale&apos; in Controllo Taglia !
L&apos;Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi guidafilo con accessori associati!
non compatibili con quelli già in uso nel progetto
%1
I comandi di questi accessori verranno ignorati !
Vuoi continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente una asociazione 
PAT manuale al colore %1 da importare !
Il colore importato verrà sostituito 
con il colore selezionato o con il primo libero !
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente un PAT manuale con nome %1 !
Il PAT importato verrà rinominato e associato come : %2 !
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute deve essere almeno di %1 passi!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultima zona e la fine disegno ci devono essere almeno %1 passi!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire una zona sovrapposta alle esistenti!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto alla zona!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto alla zona!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Un Bordo deve essere almeno di %1 passi !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra due bordi ci devono essere almeno %1 passi non bordo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto al bordo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto al bordo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultimo bordo e la fine disegno ci devono essere almeno %1 passi !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il primo bordo deve partire al passo 1 oppure dopo il passo %1!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche precedentemente apportate al
Piano Comandi verranno Eliminate !!
Vuoi continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;articolo deve iniziare con un bordo uncini !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fili in lavoro non definiti !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non è possibile avere
  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non è possibile avere
  entrambi i guidafili associati ad una pinza !

- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non è possibile avere
  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere
il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere
entrambi i guidafili associati ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere
un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Punto maglia &apos;%1&apos; non identificato nel Pat :
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire zone maglie sul passo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non ci sono alimentatori %1 attivi nella zona !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Platò abbassato con uncini attivi al passo %1 !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire il comando platò sul passo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile avere la camme rientro parziale uncini
 insieme alla camme uscita uncini al passo %1 !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Passo %1: Platò Motorizzato basso/alto con uncini attivi!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Platò Motorizzato!&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Stop Espulsore Articolo!&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione: Piano Body n. %1
Colore %2 non assegnato</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone maglia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyMap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyShape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona maglie per il passo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyMap per il passo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyShape per il passo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Motor=%1 Rango=%2 Ago=%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Motore=%1 Rango=%2 Ago=%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione!
Non è stato inserito alcun nome !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina 
 NON deve essere più lungo di %1 caratteri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Carattere &gt;%1&lt; non ammesso.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Nodrix NON può contenere i seguenti caratteri:
	 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Ammessi solo caratteri occidentali</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Ammesso nome progetto solo con estensione .ndx minuscolo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina
 NON deve essere più lungo di %1 caratteri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Veskar NON può contenere i seguenti caratteri:
	 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione!
Applicazione macchina non definita</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione!
Il progetto è di una macchina diversa da quella dell&apos;applicazione attiva!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione!
L&apos;ultimo percorso selezionato NON risulta accessibile !!!
Verrà selezionato il percorso di default !!!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte NON sono state salvate.
Continuando verranno perse.
Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte non sono state confermate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte e confermate non sono state salvate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Con il pulsante &apos;Ripristina&apos;:
-Saranno eliminate tutte le modifiche fatte dall&apos;utente!
-Saranno ripristinati tutti i default del Nodrix!
Sei sicuro di voler continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi non recuperati!
Continuando verranno persi.
Sei sicuro di voler uscire ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile leggere il file di configurazione macchina %1:
%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile leggere il file macchina : %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File macchina : %1
versione installata : %2  incompatibile 
con versione progetto : %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File macchina non riconosciuto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Macchina o costruttore non supportati</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile caricare i files macchina !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files macchina presenti nel progetto
non congruenti con quelli installati !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- %2
linea : %3 --- colonna : %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- linea %2
tag : %3
attributi : %4 --- %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archivio corrotto !!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Status : %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Funzione : %4
Versione oggetto sconosciuta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia non sono sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2
sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.
Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat %1 ed il Pat %2  richiedono:
- cambi Posizione del Guidafilo %3 gruppo %4
E&apos; possibile se fra questi cambi
ci sono almeno %5 aghi di distanza.
E&apos; necessario modificare il Disegno !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.
Tali movimenti non sono possibili sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.
Tali entrate o uscite non sono possibili sullo stesso rango di maglia.
 Per procedere è necessario modificare uno dei due pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 necessita di entrata e/o uscita di guidafili.
Tali cambi non sono possibili in presenza di camma di trattenuto.
Per procedere è necessario modificare il pat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel Disegno sono presenti Punti Maglia:
Flottato + Fuori Lavoro + Trattenuto.
E necessario eliminare uno dei tre !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo nel Primo Transfer.
E&apos; necessario modificare i Pat !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel Primo Transfer è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo se c&apos;è il
trasferimento di Tutti i Settori.
E&apos; necessario modificare Disegno o Pat !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 c&apos;è un cambio di guidafili : 
- è possibile cambiare il guidafilo 1 con il 2 o il 3
- è possibile cambiare il guidafilo 2 con il 3
- altre sequenze non sono possibili
E&apos; necessario modificare i Pat !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Guidafilo N.%1 assegnato al primo Pat applicato :
deve essere mantenuto in Tutti i Pat successivi !
E&apos; necessario modificare Pat successivi !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- fine movimento entrata camme Trattenuto/Scaricato
Tali movimenti non sono possibili sullo stesso Rango di Maglia.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 carico uncini) sulla caduta %2
  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè
dall&apos;ago di inizio all&apos;ago di fine del(i) colore(i) ci sono meno di %2 aghi di distanza.
In alternativa è necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Disegno Nitido&quot; richiede
il guidafilo 6 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel primo e ultimo rango della caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia:
non è possibile associare PAT
di &quot;Disegno Nitido&quot; con altri PAT.E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Colore&quot; richiede
il guidafilo 1-2-3 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili colore
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nel primo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nell&apos;ultimo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;NITIDO&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;COLORE&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT &apos;COLORE&apos; di modalità diversa (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT NON &apos;COLORE&apos; (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %4
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 del carico uncini) sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
in presenza di :
- entrate/uscite/cambi di guidafili
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con altri PAT di modalità incompatibile (%3).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con guidafili incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con configurazione camme incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Passaggio da PAT &apos;SPECIALE&apos; (%1) rango %2 a PAT (%3)
e&apos; possibile solo dopo almeno un rango completo in modalità &apos;SPECIALE&apos;.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %3 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili 2 e 3 del GR1.
Non e&apos; possibile sullo stesso rango di maglia!
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili GR2/GR1.
E&apos; possibile solo se nell&apos;ultimo rango di maglia :
- Tutti gli aghi sono in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)
con presenza di PAT in modalità SPECIALE (%3) :
- Tutti gli aghi devono essere in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Usata &quot;Camma Rientro Parziale Uncini&quot; nel Bordo n. %1.
Passo di movimento incompatibile con la dimensione del bordo.
Anticipare il movimento di %2 passo(i) o ampliare il bordo!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 4 cadute alla linea %2
non può essere usato in una zona a 8 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 8 cadute alla linea %2
non può essere usato in una zona a 4 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 8 a 4 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o termina all&apos;ultimo passo o %1 passi prima!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 4 a 8 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 3 passi della zona a 8 cadute !
- nel primo passo della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito la fine bordo con uncini
negli ultimi 3 passi della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito la fine bordo con uncini
negli ultimi 2 passi della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 2 passi della zona a 4 cadute !
- nel primo passo della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Non è consentito avere la Modalità Fili 0:
- nel 1° passo dopo il carico maglia !
- nell&apos;ultimo passo prima dello scarico maglia !
Per continuare è necessario modificare il Disegno !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Nessuna zona SCS presente !
Per continuare è necessario inserire almeno una zona o disabilitare l&apos;SCS.
Vuoi inserire una zona iniziale ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti Zone SCS !
Disabilitando l&apos;SCS vuoi eliminare anche le zone ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Inserire/Eliminare Zone SCS:
può comportare l&apos;eliminazione
dell&apos;Acquisizione SCS !!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
SCS è in Controllo Taglia !!!
 Alcune modifiche al progetto non sono possibili !
Per sbloccarle è necessario selezionare:
&quot;Abilita Acquisizione&quot;
ed eliminare l&apos;Acquisizione SCS
Il Controllo Taglia verrà perso !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Apportando modifiche potrebbe essere richiesta l&apos;eliminazione dell&apos;Acquisizione SCS.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi salvare anche l&apos;acquisizione SCS presente nel progetto ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Per continuare è necessario associare tutti i Vector Active
di default ad un guidafilo o eliminare l&apos;acquisizione SCS
Vuoi eliminare Acquisizione SCS ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Esegui solo le piccole modifiche al disegno
necessarie dopo un &quot;Crea Taglia&quot; altrimenti
&quot;Acquisizione SCS&quot; non sarà più idonea
Vuoi Continuare ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Operazioni possibili:
- Adattare i dati Acq. SCS al ridimensionamento
- Annullare la modifica del ridimensionamento</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione:
SCS abilitato !
Non tutte le cadute abilitate al controllo nelle zone %1
hanno un alimentatore BodyScs in lavoro
Queste cadute verranno automaticamente disabilitate al controllo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nuova Taglia Creata con Successo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progetto ridimensionato con successo !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ridimensionamento matrice pixel fallito !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ridimensionamento piani disegno fallito !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ridimensionamento struttura progetto fallita !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adattamento piani disegno fallito !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IL PROGETTO SORGENTE E&apos; IN CONTROLLO TAGLIA,
I DATI DELL&apos;ACQUISIZIONE SCS SARANNO ADATTATI
AUTOMATICAMENTE AL PROGETTO DESTINAZIONE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
Creazione Nuova Taglia fallita !!
Ripetere l&apos;operazione ed eventualmente
deselezionare l&apos;opzione &quot;Adatta i Ranghi&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ridimensionamento fallito !!
Ripetere l&apos;operazione o
inserire un diverso N. ranghi.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
Piano SCS: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone SCS !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Maglia !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone %1 !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Velocità !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
dal progetto sono stati rimossi comandi
insriti manualmente dall&apos;utente.
E&apos; necessario inserirli di nuovo manualmente :
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attenzione :
le modifiche fatte comportano :
%1
%2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VUOI PASSARE IL PROGETTO IN MODALITA&apos; PROTETTA ?

Scegliendo Si: 
- il progetto verrà automaticamente salvato
- gli strumenti grafici opereranno in modalità speciale
- sarà possibile uscire da questa modalità in qualsiasi momento

Scegliendo No: 
- sul progetto si potrà operare normalmente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- rimozione zone comandi utente</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- inserimento valori default zone comandi</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
