<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="it">
<context>
    <name>QFileSharing</name>
    <message>
        <source>Il progetto risulta in uso da:
Computer: %1	Utente: %2
Vuoi aprirlo con accesso in lettura ?</source>
        <translation>The project is in use by:
Computer: %1	User: %2
Do you want to open it read-only?</translation>
    </message>
    <message>
        <source>Il progetto è aperto in sola lettura.
 Vuoi salvarlo cambiandogli il nome ?</source>
        <translation>The project is open read-only.
Do you want to save it under a different name?</translation>
    </message>
    <message>
        <source>Attenzione: progetto in uso!!
Obbligatorio cambiargli il nome!!</source>
        <translation>Warning: the project is in use!
You must save it under a different name!</translation>
    </message>
    <message>
        <source>Il progetto è bloccato da:
Computer: %1.
Utente: %2.
Vuoi sbloccarlo ?</source>
        <translation>The project is locked by:
Computer: %1.
User: %2.
Do you want to unlock it?</translation>
    </message>
</context>
<context>
    <name>QNodrixCom</name>
    <message>
        <source>Piano cilindro</source>
        <translation>Cylinder plane</translation>
    </message>
    <message>
        <source>Piano BodyKnit</source>
        <translation>BodyKnit plane</translation>
    </message>
    <message>
        <source>Piano BodyMap</source>
        <translation>BodyMap plane</translation>
    </message>
    <message>
        <source>Piano BodyShape</source>
        <translation>BodyShape plane</translation>
    </message>
    <message>
        <source>Piano maglia</source>
        <translation>Stitch plane</translation>
    </message>
    <message>
        <source>Piano guidafili</source>
        <translation>Yarn guide plane</translation>
    </message>
    <message>
        <source>Piano comandi</source>
        <translation>Command plane</translation>
    </message>
    <message>
        <source>Inserisci Pat</source>
        <translation>Insert Pat</translation>
    </message>
    <message>
        <source>Sostituisci Pat</source>
        <translation>Replace Pat</translation>
    </message>
    <message>
        <source>Modifica Pat</source>
        <translation>Edit Pat</translation>
    </message>
    <message>
        <source>Copia Pat</source>
        <translation>Copy Pat</translation>
    </message>
    <message>
        <source>Incolla Pat</source>
        <translation>Paste Pat</translation>
    </message>
    <message>
        <source>Salva con Nome Pat</source>
        <translation>Save Pat As</translation>
    </message>
    <message>
        <source>Rimuovi Pat</source>
        <translation>Remove Pat</translation>
    </message>
    <message>
        <source>Visualizza Pat</source>
        <translation>View Pat</translation>
    </message>
    <message>
        <source>Sostituisci GDF</source>
        <translation>Replace GDF</translation>
    </message>
    <message>
        <source>0 Fili</source>
        <translation>0 yarns</translation>
    </message>
    <message>
        <source>1 Filo</source>
        <translation>1 yarn</translation>
    </message>
    <message>
        <source>2 Fili</source>
        <translation>2 yarns</translation>
    </message>
    <message>
        <source>3 Fili</source>
        <translation>3 yarns</translation>
    </message>
</context>
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Ignora</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation>ADAPT
SCS Acquisition</translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation>CANCEL
Change</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Salva con nome</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Errore</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Classe:	%1
Versione:	%2
Versione caricata:	%3
Funzione:	%4

Messaggio:	%5
</source>
        <translation>Class:	%1
Version:	%2
Loaded version:	%3
Function:	%4

Message:	%5
</translation>
    </message>
    <message>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation>Class:	%1
Function:	%2

Message:	%3
</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Informazione</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>%1
</source>
        <translation>%1
</translation>
    </message>
    <message>
        <source>Attenzione:
questo software macchina richiede sia installata 
la Piattaforma Nodrix versione %1 o superiore 
Non è possibile continuare senza aggiornare la Piattaforma !</source>
        <translation>Warning:
This machine software requires
Nodrix Platform version %1 or later to be installed.
You cannot continue without updating the Platform!</translation>
    </message>
    <message>
        <source>Continua</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Annulla</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Attenzione:
Selezionando &apos;Continua&apos; si renderà possibile
entrare in modalità &apos;PIANO COMANDI LIBERO&apos; !
Si avverte che tale modalità è consigliata
ai soli UTENTI ESPERTI !!!</source>
        <translation>Warning:
Choosing &apos;Continue&apos; lets you
enter &apos;FREE COMMAND PLANE&apos; mode!
Please note that this mode is recommended
for EXPERT USERS only!</translation>
    </message>
    <message>
        <source>Attenzione:
Stai entrando sul &apos;Piano Comandi Manuale&apos; 
   ALLINEATO   al &apos;Piano Comandi Automatico&apos;:
le modifiche fatte al &apos;Piano Comandi Manuale&apos;
potranno essere recuperate.</source>
        <translation>Warning:
You are entering the &apos;Manual Command Plane&apos;
   ALIGNED   with the &apos;Automatic Command Plane&apos;:
the changes made to the &apos;Manual Command Plane&apos;
can be recovered.</translation>
    </message>
    <message>
        <source>Attenzione:
Il &apos;PIANO COMANDI LIBERO&apos; è stato modificato!.
Vuoi salvare le modifiche fatte ?</source>
        <translation>Warning:
The &apos;FREE COMMAND PLANE&apos; has been modified.
Do you want to save the changes?</translation>
    </message>
    <message>
        <source>Attenzione:
Modalità &apos;PIANO COMANDI LIBERO&apos;
   NON CONFERMATA CON OK ! 
Sei sicuro di voler uscire ?</source>
        <translation>Warning:
&apos;FREE COMMAND PLANE&apos; mode
   has NOT been CONFIRMED WITH OK!
Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
NON sono state applicate ! 
Continuando verranno PERSE. Sei sicuro di voler uscire ?</source>
        <translation>Warning:
The changes made on the &apos;FREE COMMAND PLANE&apos;
have NOT been applied!
If you continue they will be LOST. Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
     NON sono state confermate con Ok! 
Continuando verranno Perse. Sei sicuro di voler uscire ?</source>
        <translation>Warning:
The changes made on the &apos;FREE COMMAND PLANE&apos;
     have NOT been confirmed with OK!
If you continue they will be lost. Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Prima di uscire dalla modalità &apos;PIANO COMANDI LIBERO&apos;
è necessario completare e chiudere la finestra Report !</source>
        <translation>Warning:
Before leaving &apos;FREE COMMAND PLANE&apos; mode
you must complete and close the Report window!</translation>
    </message>
    <message>
        <source>Attenzione:
Sono state rilevate modifiche al Setup del progetto !
L&apos;ingresso in modalità Piano Comandi Libero comporta:
- riallineamento del Piano Comandi all&apos;ultima elaborazione automatica
- cancellazione dei comandi manuali non congruenti con i dati di Setup
Vuoi continuare ?</source>
        <translation>Warning:
Changes to the project Setup have been detected!
Entering free command plane mode means:
- realigning the command plane with the last automatic processing
- deleting the manual commands that do not match the Setup data
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile agire sui comandi con il Report attivo!
</source>
        <translation>Warning:
You cannot work on the commands while the Report is active!
</translation>
    </message>
    <message>
        <source>Attenzione:
NESSUN comando è stato recuperato.
Uscendo non sarà più possibile alcun recupero.
Sei sicuro di voler uscire ?</source>
        <translation>Warning:
NO command has been recovered.
Once you exit, no recovery will be possible.
Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Per eliminare un comando spostato
è necessario prima annullare lo spostamento!
</source>
        <translation>Warning:
To delete a moved command
you must first undo the move!
</translation>
    </message>
    <message>
        <source>Attenzione:
SCS &apos;Piano Comandi Manuale&apos; in Controllo Taglia !
L&apos;Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>Warning:
The SCS &apos;Manual Command Plane&apos; is in Size Control!
The SCS Acquisition will be deleted!
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi guidafilo con accessori associati!
non compatibili con quelli già in uso nel progetto
%1
I comandi di questi accessori verranno ignorati !
Vuoi continuare ?</source>
        <translation>Warning:
There are yarn guide commands with associated accessories
that are not compatible with those already used in the project:
%1
The commands of these accessories will be ignored!
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente una asociazione 
PAT manuale al colore %1 da importare !
Il colore importato verrà sostituito 
con il colore selezionato o con il primo libero !
</source>
        <translation>Warning:
The project already contains a manual PAT
association for color %1 being imported!
The imported color will be replaced
with the selected color or with the first free one!
</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente un PAT manuale con nome %1 !
Il PAT importato verrà rinominato e associato come : %2 !
</source>
        <translation>Warning:
The project already contains a manual PAT named %1!
The imported PAT will be renamed and associated as: %2!
</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute deve essere almeno di %1 passi!</source>
        <translation>Warning:
A 4-feed zone must be at least %1 steps long!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!</source>
        <translation>Warning:
There must be at least %1 steps between two 4-feed zones!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultima zona e la fine disegno ci devono essere almeno %1 passi!</source>
        <translation>Warning:
There must be at least %1 steps between
the last zone and the end of the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire una zona sovrapposta alle esistenti!</source>
        <translation>Warning:
You cannot insert a zone that overlaps the existing ones!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto alla zona!</source>
        <translation>Warning:
The requested step cannot be added to the zone!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto alla zona!</source>
        <translation>Warning:
The requested step cannot be removed from the zone!</translation>
    </message>
    <message>
        <source>Attenzione:
Un Bordo deve essere almeno di %1 passi !</source>
        <translation>Warning:
A welt must be at least %1 steps long!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra due bordi ci devono essere almeno %1 passi non bordo !</source>
        <translation>Warning:
There must be at least %1 non-welt steps between two welts!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto al bordo !</source>
        <translation>Warning:
The requested step cannot be added to the welt!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto al bordo !</source>
        <translation>Warning:
The requested step cannot be removed from the welt!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultimo bordo e la fine disegno ci devono essere almeno %1 passi !</source>
        <translation>Warning:
There must be at least %1 steps between the last welt and the end of the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Il primo bordo deve partire al passo 1 oppure dopo il passo %1!</source>
        <translation>Warning:
The first welt must start at step 1 or after step %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!</source>
        <translation>Warning:
The welt starting at step %1 does NOT have the yarn guide check enabled!</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche precedentemente apportate al
Piano Comandi verranno Eliminate !!
Vuoi continuare ?</source>
        <translation>Warning:
The changes previously made to the
command plane will be deleted!
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;articolo deve iniziare con un bordo uncini !</source>
        <translation>Warning:
The article must start with a hook welt!</translation>
    </message>
    <message>
        <source>Attenzione:
Fili in lavoro non definiti !</source>
        <translation>Warning:
The yarns in work are not defined!</translation>
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
        <translation>Warning:
- During the press-off with 1 yarn, on all feeds, it is not possible
  to have the yarn guide of group 2 (yarn guides 4-5-6) associated
  with a clamp!

- During the press-off with 2 yarns, on all feeds, it is not possible
  to have both yarn guides associated with a clamp!

- During the press-off with 2 yarns, on the 5th feed only, it is not
  possible to have a yarn guide of group 2 (yarn guides 4-5-6)
  associated with a clamp!

In the Yarn Guide Map you must select a yarn guide with which
to make the change that ends the press-off.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere
il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Warning:
During the press-off with 1 yarn, on feed %1, it is not possible
to have the yarn guide of group 2 (yarn guides 4-5-6) associated
with a clamp!

In the Yarn Guide Map you must select a yarn guide with which
to make the change that ends the press-off.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere
entrambi i guidafili associati ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Warning:
During the press-off with 2 yarns, on feed %1, it is not possible
to have both yarn guides associated with a clamp!

In the Yarn Guide Map you must select a yarn guide with which
to make the change that ends the press-off.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere
un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Warning:
During the press-off with 2 yarns, on the 5th feed, it is not possible
to have a yarn guide of group 2 (yarn guides 4-5-6) associated
with a clamp!

In the Yarn Guide Map you must select a yarn guide with which
to make the change that ends the press-off.</translation>
    </message>
    <message>
        <source>Attenzione:
Punto maglia &apos;%1&apos; non identificato nel Pat :
%2</source>
        <translation>Warning:
Stitch &apos;%1&apos; not recognized in the Pat:
%2</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire zone maglie sul passo !</source>
        <translation>Warning:
Stitch zones cannot be inserted on this step!</translation>
    </message>
    <message>
        <source>Attenzione:
Non ci sono alimentatori %1 attivi nella zona !</source>
        <translation>Warning:
There are no active %1 feeders in the zone!</translation>
    </message>
    <message>
        <source>Attenzione:
Platò abbassato con uncini attivi al passo %1 !</source>
        <translation>Warning:
Dial lowered with hooks active at step %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire il comando platò sul passo !</source>
        <translation>Warning:
The dial command cannot be inserted on this step!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile avere la camme rientro parziale uncini
 insieme alla camme uscita uncini al passo %1 !</source>
        <translation>Warning:
The partial hook return cam cannot be used
together with the hook exit cam at step %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Passo %1: Platò Motorizzato basso/alto con uncini attivi!</source>
        <translation>Warning:
Step %1: Motorized Dial down/up with hooks active!</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Platò Motorizzato!&apos;</source>
        <translation>Warning:
The &apos;Motorized Dial&apos; command cannot be inserted on this step!</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Stop Espulsore Articolo!&apos;</source>
        <translation>Warning:
The &apos;Stop Article Ejector&apos; command cannot be inserted on this step!</translation>
    </message>
    <message>
        <source>Attenzione: Piano Body n. %1
Colore %2 non assegnato</source>
        <translation>Warning: Body plane no. %1
Color %2 not assigned</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone maglia</source>
        <translation>Warning:
There are no stitch zones</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyMap</source>
        <translation>Warning:
There are no BodyMap feeder zones</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyShape</source>
        <translation>Warning:
There are no BodyShape feeder zones</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona maglie per il passo %1</source>
        <translation>Warning:
There is no stitch zone for step %1</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyMap per il passo %1</source>
        <translation>Warning:
There is no BodyMap feeder zone for step %1</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyShape per il passo %1</source>
        <translation>Warning:
There is no BodyShape feeder zone for step %1</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Motor=%1 Rango=%2 Ago=%3</source>
        <translation>Warning:
Unbalance value below the allowed minimum
Motor=%1 Course=%2 Needle=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Motore=%1 Rango=%2 Ago=%3</source>
        <translation>Warning:
Unbalance value above the allowed maximum
Motor=%1 Course=%2 Needle=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>Warning:
Unbalance value below the allowed minimum
Feeder=%1 Course=%2 Needle=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>Warning:
Unbalance value above the allowed maximum
Feeder=%1 Course=%2 Needle=%3</translation>
    </message>
    <message>
        <source>Attenzione!
Non è stato inserito alcun nome !</source>
        <translation>Warning!
No name has been entered!</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina 
 NON deve essere più lungo di %1 caratteri</source>
        <translation>Warning: project names for the machine
must NOT be longer than %1 characters</translation>
    </message>
    <message>
        <source>Attenzione:
Carattere &gt;%1&lt; non ammesso.</source>
        <translation>Warning:
Character &gt;%1&lt; is not allowed.</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Nodrix NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>Warning:
Nodrix project names CANNOT contain the following characters:
	 %1</translation>
    </message>
    <message>
        <source>Attenzione:
Ammessi solo caratteri occidentali</source>
        <translation>Warning:
Only Western characters are allowed</translation>
    </message>
    <message>
        <source>Attenzione:
Ammesso nome progetto solo con estensione .ndx minuscolo</source>
        <translation>Warning:
A project name is only allowed with the lower-case extension .ndx</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina
 NON deve essere più lungo di %1 caratteri</source>
        <translation>Warning: project names for the machine
must NOT be longer than %1 characters</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Veskar NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>Warning:
Veskar project names CANNOT contain the following characters:
	 %1</translation>
    </message>
    <message>
        <source>Attenzione!
Applicazione macchina non definita</source>
        <translation>Warning!
Machine application not defined</translation>
    </message>
    <message>
        <source>Attenzione!
Il progetto è di una macchina diversa da quella dell&apos;applicazione attiva!</source>
        <translation>Warning!
The project is for a different machine than the active application!</translation>
    </message>
    <message>
        <source>Attenzione!
L&apos;ultimo percorso selezionato NON risulta accessibile !!!
Verrà selezionato il percorso di default !!!</source>
        <translation>Warning!
The last selected path is NOT accessible!
The default path will be selected!</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte NON sono state salvate.
Continuando verranno perse.
Sei sicuro di voler uscire ?</source>
        <translation>Warning:
The changes made have NOT been saved.
If you continue they will be lost.
Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte non sono state confermate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>Warning:
The changes made have not been confirmed.
If you continue they will be lost. Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte e confermate non sono state salvate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>Warning:
The changes made and confirmed have not been saved.
If you continue they will be lost. Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Attenzione:
Con il pulsante &apos;Ripristina&apos;:
-Saranno eliminate tutte le modifiche fatte dall&apos;utente!
-Saranno ripristinati tutti i default del Nodrix!
Sei sicuro di voler continuare ?</source>
        <translation>Warning:
With the &apos;Restore&apos; button:
- all the changes made by the user will be deleted!
- all the Nodrix defaults will be restored!
Are you sure you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi non recuperati!
Continuando verranno persi.
Sei sicuro di voler uscire ?</source>
        <translation>Warning:
There are commands that have not been recovered!
If you continue they will be lost.
Are you sure you want to exit?</translation>
    </message>
    <message>
        <source>Impossibile leggere il file di configurazione macchina %1:
%2.</source>
        <translation>Unable to read the machine configuration file %1:
%2.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file macchina : %1</source>
        <translation>Unable to read the machine file: %1</translation>
    </message>
    <message>
        <source>File macchina : %1
versione installata : %2  incompatibile 
con versione progetto : %3</source>
        <translation>Machine file: %1
installed version: %2, incompatible
with the project version: %3</translation>
    </message>
    <message>
        <source>File macchina non riconosciuto</source>
        <translation>Machine file not recognized</translation>
    </message>
    <message>
        <source>Macchina o costruttore non supportati</source>
        <translation>Machine or manufacturer not supported</translation>
    </message>
    <message>
        <source>Impossibile caricare i files macchina !</source>
        <translation>Unable to load the machine files!</translation>
    </message>
    <message>
        <source>Files macchina presenti nel progetto
non congruenti con quelli installati !</source>
        <translation>The machine files in the project
do not match the installed ones!</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- %2
linea : %3 --- colonna : %4</source>
        <translation>Error in Xml file: %1 --- %2
line: %3 --- column: %4</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- linea %2
tag : %3
attributi : %4 --- %5</source>
        <translation>Error in Xml file: %1 --- line %2
tag: %3
attributes: %4 --- %5</translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation>Nodrix</translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation>Unable to open the file %1:
%2</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1:
%2</source>
        <translation>Unable to read the file %1:
%2</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1:
%2</source>
        <translation>Unable to write the file %1:
%2</translation>
    </message>
    <message>
        <source>Archivio corrotto !!</source>
        <translation>Corrupted archive!</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Status : %4</source>
        <translation>Class: %1
Version: %2 --- Loaded version: %3
Status: %4</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Funzione : %4
Versione oggetto sconosciuta</source>
        <translation>Class: %1
Version: %2 --- Loaded version: %3
Function: %4
Unknown object version</translation>
    </message>
    <message>
        <source>Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro</source>
        <translation>In pat %1 the number of yarns in work is not configured for feed no. %2</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia non sono sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Some stitches used in pat %1 and in pat %2 on feed %3 require cam movements.
These movements are only possible if these stitches are not on the same knitting course.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2
sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Some stitches used in pat %1 and in pat %2
on feed %3 require cam movements.
These movements are only possible if these stitches are at least %4 steps apart.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Pat %1 and pat %2 on feed %3 require cam movements.
These movements are too close together when hook loading is selected.
There must be at least %4 step(s) between these movements.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Pat %1 and pat %2 on feed %3 require cam movements.
These movements are too close together when hook unloading is selected.
There must be at least %4 step(s) between these movements.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat %1 ed il Pat %2  richiedono:
- cambi Posizione del Guidafilo %3 gruppo %4
E&apos; possibile se fra questi cambi
ci sono almeno %5 aghi di distanza.
E&apos; necessario modificare il Disegno !</source>
        <translation>Warning:
Pat %1 and Pat %2 require:
- position changes of yarn guide %3, group %4
This is possible if these changes are
at least %5 needles apart.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.
Tali movimenti non sono possibili sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Between pat %1 and pat %2, yarn guide changes with overlap are needed.
These movements are not possible on the same knitting course.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.
Tali entrate o uscite non sono possibili sullo stesso rango di maglia.
 Per procedere è necessario modificare uno dei due pat</source>
        <translation>Warning:
Between pat %1 and pat %2, yarn guide entries or exits are needed.
These entries or exits are not possible on the same knitting course.
To proceed, you must modify one of the two pats</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 necessita di entrata e/o uscita di guidafili.
Tali cambi non sono possibili in presenza di camma di trattenuto.
Per procedere è necessario modificare il pat</source>
        <translation>Warning:
Pat %1 needs a yarn guide entry and/or exit.
Such changes are not possible when the tuck cam is used.
To proceed, you must modify the pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Disegno sono presenti Punti Maglia:
Flottato + Fuori Lavoro + Trattenuto.
E necessario eliminare uno dei tre !</source>
        <translation>Warning:
The design contains the stitches:
Float + Out of work + Tuck.
You must remove one of the three!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo nel Primo Transfer.
E&apos; necessario modificare i Pat !</source>
        <translation>Warning:
From Pat %1 to Pat %2 there is:
- a yarn guide entry/exit/change
This is only possible in the First Transfer.
You must modify the Pats!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Primo Transfer è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo se c&apos;è il
trasferimento di Tutti i Settori.
E&apos; necessario modificare Disegno o Pat !</source>
        <translation>Warning:
In the First Transfer there is:
- a yarn guide entry/exit/change
This is only possible if there is a
transfer of All Sectors.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 c&apos;è un cambio di guidafili : 
- è possibile cambiare il guidafilo 1 con il 2 o il 3
- è possibile cambiare il guidafilo 2 con il 3
- altre sequenze non sono possibili
E&apos; necessario modificare i Pat !</source>
        <translation>Warning:
From Pat %1 to Pat %2 there is a yarn guide change:
- yarn guide 1 can be changed to 2 or 3
- yarn guide 2 can be changed to 3
- other sequences are not possible
You must modify the Pats!</translation>
    </message>
    <message>
        <source>Attenzione:
Guidafilo N.%1 assegnato al primo Pat applicato :
deve essere mantenuto in Tutti i Pat successivi !
E&apos; necessario modificare Pat successivi !</source>
        <translation>Warning:
Yarn guide no. %1 assigned to the first Pat applied:
it must be kept in All the following Pats!
You must modify the following Pats!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- fine movimento entrata camme Trattenuto/Scaricato
Tali movimenti non sono possibili sullo stesso Rango di Maglia.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>Warning:
At step %1 on feed %2 there are:
- yarn guide entry-exit-change
- end of the entry movement of the Tuck/Knit cams
These movements are not possible on the same knitting course.
To proceed, you must modify the design or the Pat(s) involved</translation>
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
        <translation>Warning:
At step %1 (step 3 of hook loading) on feed %2
there are:
- yarn guide entry-exit-change
- Tuck/Knit cams that require a partial exit
These movements are not possible on the same knitting course
because they are too close together.
To proceed, you must modify the design or the Pat(s) involved</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>Warning:
At step %1 (step 3 of hook unloading) on feed %2 there are:
- yarn guide entry-exit-change
- Tuck/Knit cams that require a partial exit
These movements are not possible on the same knitting course
because they are too close together.
To proceed, you must modify the design or the Pat(s) involved</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè
dall&apos;ago di inizio all&apos;ago di fine del(i) colore(i) ci sono meno di %2 aghi di distanza.
In alternativa è necessario modificare il disegno!</source>
        <translation>Warning:
The stitch offset for the unbalance of color(s) %1 has been reset because
there are fewer than %2 needles from the start needle to the end needle of the color(s).
Alternatively, you must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Disegno Nitido&quot; richiede
il guidafilo 6 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On feed %1 &quot;Sharp Design&quot; requires
yarn guide 6 throughout the project.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
Pat &apos;%1&apos; and Pat &apos;%2&apos; require:
- yarn guide exit and entry
This is possible if these changes are
at least %3 needles apart.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel primo e ultimo rango della caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In the first and last course of feed %1
the color cannot be added in &quot;Sharp Design&quot;.
See Pat: %2
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia:
non è possibile associare PAT
di &quot;Disegno Nitido&quot; con altri PAT.E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course
it is not possible to associate PATs
of &quot;Sharp Design&quot; with other PATs. You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In steps %1 of hook loading on feed %2
the color cannot be added in &quot;Sharp Design&quot;.
See Pat: %3
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In step %1 of hook loading on feed %2
the color cannot be added in &quot;Sharp Design&quot;.
See Pat: %3
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In steps 1 and 2 of hook unloading on feed %1
the color cannot be added in &quot;Sharp Design&quot;.
See Pat: %2
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In step 3 of hook unloading on feed %1
the color cannot be added in &quot;Sharp Design&quot;.
See Pat: %2
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Colore&quot; richiede
il guidafilo 1-2-3 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On feed %1 &quot;Color&quot; requires
yarn guides 1-2-3 throughout the project.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili colore
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
Pat &apos;%1&apos; and Pat &apos;%2&apos; require:
- color yarn guide exit and entry
This is possible if these changes are
at least %3 needles apart.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nel primo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
in the first course of feed %3
the color cannot be added in the color area.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nell&apos;ultimo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
in the last course of feed %3
the color cannot be added in the color area.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a cam movement is required:
this is NOT possible within the same &apos;SHARP&apos; mode.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;NITIDO&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a cam movement is required:
between &apos;SHARP&apos; modes this is only possible after %4 steps.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a cam movement is required:
this is NOT possible within the same &apos;COLOR&apos; mode.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;COLORE&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a cam movement is required:
between &apos;COLOR&apos; modes this is only possible after %4 steps.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a yarn guide movement is required:
this is NOT possible within the same &apos;SHARP&apos; mode.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Warning:
In the transition between Pat &apos;%1&apos; and Pat &apos;%2&apos;
of feed %3 a yarn guide movement is required:
this is NOT possible within the same &apos;COLOR&apos; mode.
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT &apos;COLORE&apos; di modalità diversa (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course it is not possible to associate:
&apos;COLOR&apos; PAT (%1) with other &apos;COLOR&apos; PATs of a different mode (%2).
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT NON &apos;COLORE&apos; (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course it is not possible to associate:
&apos;COLOR&apos; PAT (%1) with other PATs that are NOT &apos;COLOR&apos; (%2).
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In steps %1 of hook loading on feed %2
the color cannot be added in &quot;Color Mode&quot;.
See Pat: %3
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %4
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In step %1 of hook loading for the first %2 needles on feed %3
the color cannot be added in &quot;Color Mode&quot;.
See Pat: %4
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 del carico uncini) sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
in presenza di :
- entrate/uscite/cambi di guidafili
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In step %1 (step 3 of hook loading) on feed %2
the color cannot be added in &quot;Color Mode&quot;
when there are:
- yarn guide entries/exits/changes
See Pat: %3
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In steps 1 and 2 of hook unloading on feed %1
the color cannot be added in &quot;Color Mode&quot;.
See Pat: %2
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
In step 3 of hook unloading for the first %1 needles on feed %2
the color cannot be added in &quot;Color Mode&quot;.
See Pat: %3
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con altri PAT di modalità incompatibile (%3).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course %1 it is not possible to associate:
&apos;SPECIAL&apos; PAT (%2) with other PATs of an incompatible mode (%3).
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con guidafili incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course %1 it is not possible to associate:
&apos;SPECIAL&apos; PAT (%2) with PAT (%3) that has incompatible yarn guides.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con configurazione camme incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
On the same knitting course %1 it is not possible to associate:
&apos;SPECIAL&apos; PAT (%2) with PAT (%3) that has an incompatible cam configuration.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Passaggio da PAT &apos;SPECIALE&apos; (%1) rango %2 a PAT (%3)
e&apos; possibile solo dopo almeno un rango completo in modalità &apos;SPECIALE&apos;.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
The transition from &apos;SPECIAL&apos; PAT (%1) at course %2 to PAT (%3)
is only possible after at least one complete course in &apos;SPECIAL&apos; mode.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
From PAT %1 to PAT %2 at course %3 the following is required:
- ENTRY/EXIT of YARN GUIDE 2/3 GR1.
This is possible if they are at least %4 needles apart!
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
From PAT %1 to PAT %2 at course %3 the following is required:
- EXIT/ENTRY of YARN GUIDE 2/3 GR1.
This is possible if they are at least %4 needles apart!
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %3 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Warning:
From PAT %1 to the press-off at course %2 the following is required:
- ENTRY/EXIT of YARN GUIDE 2/3 GR1.
This is possible if they are at least %3 needles apart!
You must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili 2 e 3 del GR1.
Non e&apos; possibile sullo stesso rango di maglia!
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Warning:
Course %1: from PAT in SPECIAL mode (%2)
to PAT in SPECIAL mode (%3) the following is required:
- Change of yarn guides 2 and 3 of GR1.
This is not possible on the same knitting course!
To continue, you must modify the design or the PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili GR2/GR1.
E&apos; possibile solo se nell&apos;ultimo rango di maglia :
- Tutti gli aghi sono in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Warning:
Course %1: from PAT in SPECIAL mode (%2)
to PAT in SPECIAL mode (%3) the following is required:
- Change of yarn guides GR2/GR1.
This is only possible if in the last knitting course:
- All needles are in SPECIAL mode
To continue, you must modify the design or the PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)
con presenza di PAT in modalità SPECIALE (%3) :
- Tutti gli aghi devono essere in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Warning:
In hook loading step %1 on feed 5 (course %2)
with PAT in SPECIAL mode (%3):
- All needles must be in SPECIAL mode
To continue, you must modify the design or the PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Usata &quot;Camma Rientro Parziale Uncini&quot; nel Bordo n. %1.
Passo di movimento incompatibile con la dimensione del bordo.
Anticipare il movimento di %2 passo(i) o ampliare il bordo!</source>
        <translation>Warning:
&quot;Partial Hook Return Cam&quot; used in welt no. %1.
The movement step is incompatible with the length of the welt.
Bring the movement forward by %2 step(s) or lengthen the welt!</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 4 cadute alla linea %2
non può essere usato in una zona a 8 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
The 4-feed PAT %1 at line %2
cannot be used in an 8-feed zone.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 8 cadute alla linea %2
non può essere usato in una zona a 4 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning:
The 8-feed PAT %1 at line %2
cannot be used in a 4-feed zone.
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation>Warning:
A 4-feed zone must start either at the first step or after %1 steps!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 8 a 4 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning at step %1:
In the last 3 steps before switching from 8 to 4 feeds:
Color or Sharp Mode is NOT allowed!
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o termina all&apos;ultimo passo o %1 passi prima!</source>
        <translation>Warning:
A 4-feed zone must end either at the last step or %1 steps before it!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 4 a 8 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Warning at step %1:
In the last 3 steps before switching from 4 to 8 feeds:
Color or Sharp Mode is NOT allowed!
You must modify the design or the Pat!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 3 passi della zona a 8 cadute !
- nel primo passo della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Warning at step %1:
In the transition from an 8-feed zone to a 4-feed zone
a welt start with hooks is not allowed:
- in the last 3 steps of the 8-feed zone!
- in the first step of the 4-feed zone!
You must resolve the conflict!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito la fine bordo con uncini
negli ultimi 3 passi della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Warning at step %1:
In the transition from an 8-feed zone to a 4-feed zone
a welt end with hooks is not allowed
in the last 3 steps of the 8-feed zone!
You must resolve the conflict!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito la fine bordo con uncini
negli ultimi 2 passi della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Warning at step %1:
In the transition from a 4-feed zone to an 8-feed zone
a welt end with hooks is not allowed
in the last 2 steps of the 4-feed zone!
You must resolve the conflict!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 2 passi della zona a 4 cadute !
- nel primo passo della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Warning at step %1:
In the transition from a 4-feed zone to an 8-feed zone
a welt start with hooks is not allowed:
- in the last 2 steps of the 4-feed zone!
- in the first step of the 8-feed zone!
You must resolve the conflict!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è consentito avere la Modalità Fili 0:
- nel 1° passo dopo il carico maglia !
- nell&apos;ultimo passo prima dello scarico maglia !
Per continuare è necessario modificare il Disegno !</source>
        <translation>Warning:
Yarn Mode 0 is not allowed:
- in the 1st step after the cast-on!
- in the last step before the press-off!
To continue, you must modify the design!</translation>
    </message>
    <message>
        <source>Attenzione:
Nessuna zona SCS presente !
Per continuare è necessario inserire almeno una zona o disabilitare l&apos;SCS.
Vuoi inserire una zona iniziale ?</source>
        <translation>Warning:
No SCS zone is present!
To continue, you must insert at least one zone or disable SCS.
Do you want to insert an initial zone?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti Zone SCS !
Disabilitando l&apos;SCS vuoi eliminare anche le zone ?</source>
        <translation>Warning:
There are SCS zones!
Do you want to delete the zones as well when disabling SCS?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Inserire/Eliminare Zone SCS:
può comportare l&apos;eliminazione
dell&apos;Acquisizione SCS !!</source>
        <translation>Warning:
SCS is in Size Control!
Inserting/deleting SCS zones
may cause the SCS Acquisition
to be deleted!</translation>
    </message>
    <message>
        <source>Attenzione :
SCS è in Controllo Taglia !!!
 Alcune modifiche al progetto non sono possibili !
Per sbloccarle è necessario selezionare:
&quot;Abilita Acquisizione&quot;
ed eliminare l&apos;Acquisizione SCS
Il Controllo Taglia verrà perso !</source>
        <translation>Warning:
SCS is in Size Control!
Some changes to the project are not possible!
To unlock them you must select
&quot;Enable Acquisition&quot;
and delete the SCS Acquisition.
Size Control will be lost!</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Apportando modifiche potrebbe essere richiesta l&apos;eliminazione dell&apos;Acquisizione SCS.</source>
        <translation>Warning:
SCS is in Size Control!
Making changes may require deleting the SCS Acquisition.</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>Warning:
SCS is in Size Control!
The SCS Acquisition will be deleted!
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi salvare anche l&apos;acquisizione SCS presente nel progetto ?</source>
        <translation>Warning:
Do you also want to save the SCS Acquisition in the project?</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation>Warning:
Do you want to save the changes you made?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Per continuare è necessario associare tutti i Vector Active
di default ad un guidafilo o eliminare l&apos;acquisizione SCS
Vuoi eliminare Acquisizione SCS ?</source>
        <translation>Warning:
SCS is in Size Control!
To continue, you must associate every default Vector Active
with a yarn guide, or delete the SCS Acquisition.
Do you want to delete the SCS Acquisition?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Esegui solo le piccole modifiche al disegno
necessarie dopo un &quot;Crea Taglia&quot; altrimenti
&quot;Acquisizione SCS&quot; non sarà più idonea
Vuoi Continuare ?</source>
        <translation>Warning:
SCS is in Size Control!
Make only the small design changes
needed after a &quot;Create Size&quot;, otherwise
the &quot;SCS Acquisition&quot; will no longer be valid.
Do you want to continue?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Operazioni possibili:
- Adattare i dati Acq. SCS al ridimensionamento
- Annullare la modifica del ridimensionamento</source>
        <translation>Warning:
SCS is in Size Control!
Possible operations:
- Adapt the SCS Acquisition data to the resizing
- Cancel the resizing change</translation>
    </message>
    <message>
        <source>Attenzione:
SCS abilitato !
Non tutte le cadute abilitate al controllo nelle zone %1
hanno un alimentatore BodyScs in lavoro
Queste cadute verranno automaticamente disabilitate al controllo</source>
        <translation>Warning:
SCS enabled!
Not all the feeds enabled for control in zones %1
have a BodyScs feeder in work.
These feeds will be automatically disabled for control.</translation>
    </message>
    <message>
        <source>Nuova Taglia Creata con Successo !</source>
        <translation>New size created successfully!</translation>
    </message>
    <message>
        <source>Progetto ridimensionato con successo !</source>
        <translation>Project resized successfully!</translation>
    </message>
    <message>
        <source>Ridimensionamento matrice pixel fallito !</source>
        <translation>Resizing of the pixel matrix failed!</translation>
    </message>
    <message>
        <source>Ridimensionamento piani disegno fallito !</source>
        <translation>Resizing of the design planes failed!</translation>
    </message>
    <message>
        <source>Ridimensionamento struttura progetto fallita !</source>
        <translation>Resizing of the project structure failed!</translation>
    </message>
    <message>
        <source>Adattamento piani disegno fallito !</source>
        <translation>Adapting the design planes failed!</translation>
    </message>
    <message>
        <source>IL PROGETTO SORGENTE E&apos; IN CONTROLLO TAGLIA,
I DATI DELL&apos;ACQUISIZIONE SCS SARANNO ADATTATI
AUTOMATICAMENTE AL PROGETTO DESTINAZIONE</source>
        <translation>THE SOURCE PROJECT IS IN SIZE CONTROL,
THE SCS ACQUISITION DATA WILL BE ADAPTED
AUTOMATICALLY TO THE DESTINATION PROJECT</translation>
    </message>
    <message>
        <source>Attenzione :
Creazione Nuova Taglia fallita !!
Ripetere l&apos;operazione ed eventualmente
deselezionare l&apos;opzione &quot;Adatta i Ranghi&quot;</source>
        <translation>Warning:
Creation of the new size failed!
Repeat the operation and, if necessary,
deselect the &quot;Adapt Courses&quot; option</translation>
    </message>
    <message>
        <source>Ridimensionamento fallito !!
Ripetere l&apos;operazione o
inserire un diverso N. ranghi.</source>
        <translation>Resizing failed!
Repeat the operation or
enter a different number of courses.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano SCS: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone SCS !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Warning:
SCS plane: the resizing requires
deleting one or more SCS zones!
Operation not possible!
Enter a different number of courses
or modify these zones.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Maglia !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Warning:
Command plane: the resizing requires
deleting one or more stitch zones!
Operation not possible!
Enter a different number of courses
or modify these zones.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone %1 !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Warning:
Command plane: the resizing requires
deleting one or more %1 zones!
Operation not possible!
Enter a different number of courses
or modify these zones.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Velocità !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Warning:
Command plane: the resizing requires
deleting one or more speed zones!
Operation not possible!
Enter a different number of courses
or modify these zones.</translation>
    </message>
    <message>
        <source>Attenzione :
dal progetto sono stati rimossi comandi
insriti manualmente dall&apos;utente.
E&apos; necessario inserirli di nuovo manualmente :
%1</source>
        <translation>Warning:
Commands entered manually by the user
have been removed from the project.
You must enter them again manually:
%1</translation>
    </message>
    <message>
        <source>Attenzione :
le modifiche fatte comportano :
%1
%2
</source>
        <translation>Warning:
The changes made result in:
%1
%2
</translation>
    </message>
    <message>
        <source>VUOI PASSARE IL PROGETTO IN MODALITA&apos; PROTETTA ?

Scegliendo Si: 
- il progetto verrà automaticamente salvato
- gli strumenti grafici opereranno in modalità speciale
- sarà possibile uscire da questa modalità in qualsiasi momento

Scegliendo No: 
- sul progetto si potrà operare normalmente</source>
        <translation>DO YOU WANT TO SWITCH THE PROJECT TO PROTECTED MODE?

Choosing Yes:
- the project will be saved automatically
- the graphic tools will work in a special mode
- you can leave this mode at any time

Choosing No:
- you can work on the project as usual</translation>
    </message>
    <message>
        <source>- rimozione zone comandi utente</source>
        <translation>- removal of user command zones</translation>
    </message>
    <message>
        <source>- inserimento valori default zone comandi</source>
        <translation>- insertion of default values into command zones</translation>
    </message>
</context>
</TS>
