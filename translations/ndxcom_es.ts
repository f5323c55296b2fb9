<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="it">
<context>
    <name>QFileSharing</name>
    <message>
        <source>Il progetto risulta in uso da:
Computer: %1	Utente: %2
Vuoi aprirlo con accesso in lettura ?</source>
        <translation>El proyecto está en uso por:
Equipo: %1	Usuario: %2
¿Desea abrirlo en modo de solo lectura?</translation>
    </message>
    <message>
        <source>Il progetto è aperto in sola lettura.
 Vuoi salvarlo cambiandogli il nome ?</source>
        <translation>El proyecto está abierto en modo de solo lectura.
¿Desea guardarlo con otro nombre?</translation>
    </message>
    <message>
        <source>Attenzione: progetto in uso!!
Obbligatorio cambiargli il nome!!</source>
        <translation>Atención: ¡proyecto en uso!
¡Es obligatorio cambiarle el nombre!</translation>
    </message>
    <message>
        <source>Il progetto è bloccato da:
Computer: %1.
Utente: %2.
Vuoi sbloccarlo ?</source>
        <translation>El proyecto está bloqueado por:
Equipo: %1.
Usuario: %2.
¿Desea desbloquearlo?</translation>
    </message>
</context>
<context>
    <name>QNodrixCom</name>
    <message>
        <source>Piano cilindro</source>
        <translation>Plano del cilindro</translation>
    </message>
    <message>
        <source>Piano BodyKnit</source>
        <translation>Plano BodyKnit</translation>
    </message>
    <message>
        <source>Piano BodyMap</source>
        <translation>Plano BodyMap</translation>
    </message>
    <message>
        <source>Piano BodyShape</source>
        <translation>Plano BodyShape</translation>
    </message>
    <message>
        <source>Piano maglia</source>
        <translation>Plano de puntos</translation>
    </message>
    <message>
        <source>Piano guidafili</source>
        <translation>Plano de guiahílos</translation>
    </message>
    <message>
        <source>Piano comandi</source>
        <translation>Plano de comandos</translation>
    </message>
    <message>
        <source>Inserisci Pat</source>
        <translation>Insertar Pat</translation>
    </message>
    <message>
        <source>Sostituisci Pat</source>
        <translation>Sustituir Pat</translation>
    </message>
    <message>
        <source>Modifica Pat</source>
        <translation>Modificar Pat</translation>
    </message>
    <message>
        <source>Copia Pat</source>
        <translation>Copiar Pat</translation>
    </message>
    <message>
        <source>Incolla Pat</source>
        <translation>Pegar Pat</translation>
    </message>
    <message>
        <source>Salva con Nome Pat</source>
        <translation>Guardar Pat como</translation>
    </message>
    <message>
        <source>Rimuovi Pat</source>
        <translation>Quitar Pat</translation>
    </message>
    <message>
        <source>Visualizza Pat</source>
        <translation>Ver Pat</translation>
    </message>
    <message>
        <source>Sostituisci GDF</source>
        <translation>Sustituir GDF</translation>
    </message>
    <message>
        <source>0 Fili</source>
        <translation>0 hilos</translation>
    </message>
    <message>
        <source>1 Filo</source>
        <translation>1 hilo</translation>
    </message>
    <message>
        <source>2 Fili</source>
        <translation>2 hilos</translation>
    </message>
    <message>
        <source>3 Fili</source>
        <translation>3 hilos</translation>
    </message>
</context>
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Ignora</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation>ADAPTAR
Adquisición SCS</translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation>ANULAR
Modificación</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Salva con nome</source>
        <translation>Guardar como</translation>
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
        <translation>Clase:	%1
Versión:	%2
Versión cargada:	%3
Función:	%4

Mensaje:	%5
</translation>
    </message>
    <message>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation>Clase:	%1
Función:	%2

Mensaje:	%3
</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Informazione</source>
        <translation>Información</translation>
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
        <translation>Atención:
Este software de máquina requiere que esté instalada
la Plataforma Nodrix versión %1 o superior.
¡No es posible continuar sin actualizar la Plataforma!</translation>
    </message>
    <message>
        <source>Continua</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Annulla</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Attenzione:
Selezionando &apos;Continua&apos; si renderà possibile
entrare in modalità &apos;PIANO COMANDI LIBERO&apos; !
Si avverte che tale modalità è consigliata
ai soli UTENTI ESPERTI !!!</source>
        <translation>Atención:
Si selecciona &apos;Continuar&apos;, podrá
entrar en el modo &apos;PLANO DE COMANDOS LIBRE&apos;.
¡Tenga en cuenta que este modo se recomienda
solo a USUARIOS EXPERTOS!</translation>
    </message>
    <message>
        <source>Attenzione:
Stai entrando sul &apos;Piano Comandi Manuale&apos; 
   ALLINEATO   al &apos;Piano Comandi Automatico&apos;:
le modifiche fatte al &apos;Piano Comandi Manuale&apos;
potranno essere recuperate.</source>
        <translation>Atención:
Está entrando en el &apos;Plano de Comandos Manual&apos;
   ALINEADO   con el &apos;Plano de Comandos Automático&apos;:
los cambios realizados en el &apos;Plano de Comandos Manual&apos;
podrán recuperarse.</translation>
    </message>
    <message>
        <source>Attenzione:
Il &apos;PIANO COMANDI LIBERO&apos; è stato modificato!.
Vuoi salvare le modifiche fatte ?</source>
        <translation>Atención:
¡Se ha modificado el &apos;PLANO DE COMANDOS LIBRE&apos;!
¿Desea guardar los cambios realizados?</translation>
    </message>
    <message>
        <source>Attenzione:
Modalità &apos;PIANO COMANDI LIBERO&apos;
   NON CONFERMATA CON OK ! 
Sei sicuro di voler uscire ?</source>
        <translation>Atención:
Modo &apos;PLANO DE COMANDOS LIBRE&apos;
   ¡NO CONFIRMADO CON OK!
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
NON sono state applicate ! 
Continuando verranno PERSE. Sei sicuro di voler uscire ?</source>
        <translation>Atención:
¡Los cambios realizados en el &apos;PLANO DE COMANDOS LIBRE&apos;
NO se han aplicado!
Si continúa, se PERDERÁN.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
     NON sono state confermate con Ok! 
Continuando verranno Perse. Sei sicuro di voler uscire ?</source>
        <translation>Atención:
¡Los cambios realizados en el &apos;PLANO DE COMANDOS LIBRE&apos;
     NO se han confirmado con OK!
Si continúa, se perderán.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Prima di uscire dalla modalità &apos;PIANO COMANDI LIBERO&apos;
è necessario completare e chiudere la finestra Report !</source>
        <translation>Atención:
¡Antes de salir del modo &apos;PLANO DE COMANDOS LIBRE&apos;
es necesario completar y cerrar la ventana Report!</translation>
    </message>
    <message>
        <source>Attenzione:
Sono state rilevate modifiche al Setup del progetto !
L&apos;ingresso in modalità Piano Comandi Libero comporta:
- riallineamento del Piano Comandi all&apos;ultima elaborazione automatica
- cancellazione dei comandi manuali non congruenti con i dati di Setup
Vuoi continuare ?</source>
        <translation>Atención:
¡Se han detectado cambios en el Setup del proyecto!
Entrar en el modo Plano de Comandos Libre implica:
- realinear el Plano de Comandos con la última elaboración automática
- borrar los comandos manuales no coherentes con los datos de Setup
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile agire sui comandi con il Report attivo!
</source>
        <translation>Atención:
¡No es posible actuar sobre los comandos con el Report activo!
</translation>
    </message>
    <message>
        <source>Attenzione:
NESSUN comando è stato recuperato.
Uscendo non sarà più possibile alcun recupero.
Sei sicuro di voler uscire ?</source>
        <translation>Atención:
No se ha recuperado NINGÚN comando.
Si sale, ya no será posible recuperar nada.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Per eliminare un comando spostato
è necessario prima annullare lo spostamento!
</source>
        <translation>Atención:
Para eliminar un comando desplazado,
¡primero es necesario deshacer el desplazamiento!
</translation>
    </message>
    <message>
        <source>Attenzione:
SCS &apos;Piano Comandi Manuale&apos; in Controllo Taglia !
L&apos;Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>Atención:
¡SCS del &apos;Plano de Comandos Manual&apos; en Control de Talla!
¡La Adquisición SCS se eliminará!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi guidafilo con accessori associati!
non compatibili con quelli già in uso nel progetto
%1
I comandi di questi accessori verranno ignorati !
Vuoi continuare ?</source>
        <translation>Atención:
Hay comandos de guiahílos con accesorios asociados
no compatibles con los que ya se usan en el proyecto:
%1
¡Los comandos de estos accesorios se ignorarán!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente una asociazione 
PAT manuale al colore %1 da importare !
Il colore importato verrà sostituito 
con il colore selezionato o con il primo libero !
</source>
        <translation>Atención:
¡El proyecto ya contiene una asociación
de PAT manual al color %1 que se va a importar!
¡El color importado se sustituirá
por el color seleccionado o por el primero libre!
</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente un PAT manuale con nome %1 !
Il PAT importato verrà rinominato e associato come : %2 !
</source>
        <translation>Atención:
¡El proyecto ya contiene un PAT manual con el nombre %1!
¡El PAT importado se renombrará y asociará como: %2!
</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute deve essere almeno di %1 passi!</source>
        <translation>Atención:
¡Una zona de 4 caídas debe tener al menos %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!</source>
        <translation>Atención:
¡Entre 2 zonas de 4 caídas debe haber al menos %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultima zona e la fine disegno ci devono essere almeno %1 passi!</source>
        <translation>Atención:
¡Entre la última zona y el final del diseño
debe haber al menos %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire una zona sovrapposta alle esistenti!</source>
        <translation>Atención:
¡No es posible insertar una zona superpuesta a las existentes!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto alla zona!</source>
        <translation>Atención:
¡No es posible añadir el paso solicitado a la zona!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto alla zona!</source>
        <translation>Atención:
¡No es posible quitar el paso solicitado de la zona!</translation>
    </message>
    <message>
        <source>Attenzione:
Un Bordo deve essere almeno di %1 passi !</source>
        <translation>Atención:
¡Un dobladillo debe tener al menos %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra due bordi ci devono essere almeno %1 passi non bordo !</source>
        <translation>Atención:
¡Entre dos dobladillos debe haber al menos %1 pasos que no sean de dobladillo!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto al bordo !</source>
        <translation>Atención:
¡No es posible añadir el paso solicitado al dobladillo!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto al bordo !</source>
        <translation>Atención:
¡No es posible quitar el paso solicitado del dobladillo!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultimo bordo e la fine disegno ci devono essere almeno %1 passi !</source>
        <translation>Atención:
¡Entre el último dobladillo y el final del diseño debe haber al menos %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione:
Il primo bordo deve partire al passo 1 oppure dopo il passo %1!</source>
        <translation>Atención:
¡El primer dobladillo debe empezar en el paso 1 o después del paso %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!</source>
        <translation>Atención:
¡El dobladillo que empieza en el paso %1 NO tiene activada la casilla del guiahílos!</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche precedentemente apportate al
Piano Comandi verranno Eliminate !!
Vuoi continuare ?</source>
        <translation>Atención:
¡Los cambios realizados anteriormente en el
Plano de Comandos se eliminarán!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;articolo deve iniziare con un bordo uncini !</source>
        <translation>Atención:
¡El artículo debe empezar con un dobladillo de ganchos!</translation>
    </message>
    <message>
        <source>Attenzione:
Fili in lavoro non definiti !</source>
        <translation>Atención:
¡Hilos en trabajo no definidos!</translation>
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
        <translation>Atención:
- ¡Durante el remate de puntos con 1 hilo, en todas las caídas,
  no es posible tener el guiahílos del grupo 2 (guiahílos 4-5-6)
  asociado a una pinza!

- ¡Durante el remate de puntos con 2 hilos, en todas las caídas,
  no es posible tener ambos guiahílos asociados a una pinza!

- ¡Durante el remate de puntos con 2 hilos, solo en la 5.ª caída,
  no es posible tener un guiahílos del grupo 2 (guiahílos 4-5-6)
  asociado a una pinza!

Es necesario seleccionar, en el Mapa de Guiahílos, un guiahílos
con el que realizar el cambio para terminar el remate de puntos.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere
il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Atención:
¡Durante el remate de puntos con 1 hilo, en la caída %1,
no es posible tener el guiahílos del grupo 2 (guiahílos 4-5-6)
asociado a una pinza!

Es necesario seleccionar, en el Mapa de Guiahílos, un guiahílos
con el que realizar el cambio para terminar el remate de puntos.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere
entrambi i guidafili associati ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Atención:
¡Durante el remate de puntos con 2 hilos, en la caída %1,
no es posible tener ambos guiahílos asociados a una pinza!

Es necesario seleccionar, en el Mapa de Guiahílos, un guiahílos
con el que realizar el cambio para terminar el remate de puntos.</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere
un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>Atención:
¡Durante el remate de puntos con 2 hilos, en la 5.ª caída,
no es posible tener un guiahílos del grupo 2 (guiahílos 4-5-6)
asociado a una pinza!

Es necesario seleccionar, en el Mapa de Guiahílos, un guiahílos
con el que realizar el cambio para terminar el remate de puntos.</translation>
    </message>
    <message>
        <source>Attenzione:
Punto maglia &apos;%1&apos; non identificato nel Pat :
%2</source>
        <translation>Atención:
Punto &apos;%1&apos; no identificado en el Pat:
%2</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire zone maglie sul passo !</source>
        <translation>Atención:
¡No es posible insertar zonas de puntos en el paso!</translation>
    </message>
    <message>
        <source>Attenzione:
Non ci sono alimentatori %1 attivi nella zona !</source>
        <translation>Atención:
¡No hay alimentadores %1 activos en la zona!</translation>
    </message>
    <message>
        <source>Attenzione:
Platò abbassato con uncini attivi al passo %1 !</source>
        <translation>Atención:
¡Plato bajado con ganchos activos en el paso %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire il comando platò sul passo !</source>
        <translation>Atención:
¡No es posible insertar el comando del plato en el paso!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile avere la camme rientro parziale uncini
 insieme alla camme uscita uncini al passo %1 !</source>
        <translation>Atención:
¡No es posible tener la leva de retorno parcial de ganchos
junto con la leva de salida de ganchos en el paso %1!</translation>
    </message>
    <message>
        <source>Attenzione:
Passo %1: Platò Motorizzato basso/alto con uncini attivi!</source>
        <translation>Atención:
Paso %1: ¡Plato Motorizado bajo/alto con ganchos activos!</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Platò Motorizzato!&apos;</source>
        <translation>Atención:
¡No es posible insertar el comando &apos;Plato Motorizado&apos; en el paso!</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Stop Espulsore Articolo!&apos;</source>
        <translation>Atención:
¡No es posible insertar el comando &apos;Parada Expulsor de Artículo&apos; en el paso!</translation>
    </message>
    <message>
        <source>Attenzione: Piano Body n. %1
Colore %2 non assegnato</source>
        <translation>Atención: Plano Body n.º %1
Color %2 no asignado</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone maglia</source>
        <translation>Atención:
No hay zonas de puntos</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyMap</source>
        <translation>Atención:
No hay zonas de alimentadores BodyMap</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyShape</source>
        <translation>Atención:
No hay zonas de alimentadores BodyShape</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona maglie per il passo %1</source>
        <translation>Atención:
No existe la zona de puntos para el paso %1</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyMap per il passo %1</source>
        <translation>Atención:
No existe la zona de alimentadores BodyMap para el paso %1</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyShape per il passo %1</source>
        <translation>Atención:
No existe la zona de alimentadores BodyShape para el paso %1</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Motor=%1 Rango=%2 Ago=%3</source>
        <translation>Atención:
Valor de desequilibrio inferior al mínimo permitido
Motor=%1 Pasada=%2 Aguja=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Motore=%1 Rango=%2 Ago=%3</source>
        <translation>Atención:
Valor de desequilibrio superior al máximo permitido
Motor=%1 Pasada=%2 Aguja=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>Atención:
Valor de desequilibrio inferior al mínimo permitido
Alimentador=%1 Pasada=%2 Aguja=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>Atención:
Valor de desequilibrio superior al máximo permitido
Alimentador=%1 Pasada=%2 Aguja=%3</translation>
    </message>
    <message>
        <source>Attenzione!
Non è stato inserito alcun nome !</source>
        <translation>¡Atención!
¡No se ha introducido ningún nombre!</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina 
 NON deve essere più lungo di %1 caratteri</source>
        <translation>Atención: el nombre de los proyectos para la máquina
NO debe tener más de %1 caracteres</translation>
    </message>
    <message>
        <source>Attenzione:
Carattere &gt;%1&lt; non ammesso.</source>
        <translation>Atención:
Carácter &gt;%1&lt; no permitido.</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Nodrix NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>Atención:
El nombre de los proyectos Nodrix NO puede contener los siguientes caracteres:
	 %1</translation>
    </message>
    <message>
        <source>Attenzione:
Ammessi solo caratteri occidentali</source>
        <translation>Atención:
Solo se admiten caracteres occidentales</translation>
    </message>
    <message>
        <source>Attenzione:
Ammesso nome progetto solo con estensione .ndx minuscolo</source>
        <translation>Atención:
Solo se admiten nombres de proyecto con la extensión .ndx en minúsculas</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina
 NON deve essere più lungo di %1 caratteri</source>
        <translation>Atención: el nombre de los proyectos para la máquina
NO debe tener más de %1 caracteres</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Veskar NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>Atención:
El nombre de los proyectos Veskar NO puede contener los siguientes caracteres:
	 %1</translation>
    </message>
    <message>
        <source>Attenzione!
Applicazione macchina non definita</source>
        <translation>¡Atención!
Aplicación de máquina no definida</translation>
    </message>
    <message>
        <source>Attenzione!
Il progetto è di una macchina diversa da quella dell&apos;applicazione attiva!</source>
        <translation>¡Atención!
¡El proyecto es de una máquina distinta de la de la aplicación activa!</translation>
    </message>
    <message>
        <source>Attenzione!
L&apos;ultimo percorso selezionato NON risulta accessibile !!!
Verrà selezionato il percorso di default !!!</source>
        <translation>¡Atención!
¡La última ruta seleccionada NO es accesible!
¡Se seleccionará la ruta predeterminada!</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte NON sono state salvate.
Continuando verranno perse.
Sei sicuro di voler uscire ?</source>
        <translation>Atención:
Los cambios realizados NO se han guardado.
Si continúa, se perderán.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte non sono state confermate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>Atención:
Los cambios realizados no se han confirmado.
Si continúa, se perderán.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte e confermate non sono state salvate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>Atención:
Los cambios realizados y confirmados no se han guardado.
Si continúa, se perderán.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Attenzione:
Con il pulsante &apos;Ripristina&apos;:
-Saranno eliminate tutte le modifiche fatte dall&apos;utente!
-Saranno ripristinati tutti i default del Nodrix!
Sei sicuro di voler continuare ?</source>
        <translation>Atención:
Con el botón &apos;Restablecer&apos;:
- ¡Se eliminarán todos los cambios realizados por el usuario!
- ¡Se restablecerán todos los valores predeterminados de Nodrix!
¿Está seguro de que desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi non recuperati!
Continuando verranno persi.
Sei sicuro di voler uscire ?</source>
        <translation>Atención:
¡Hay comandos no recuperados!
Si continúa, se perderán.
¿Está seguro de que desea salir?</translation>
    </message>
    <message>
        <source>Impossibile leggere il file di configurazione macchina %1:
%2.</source>
        <translation>No se puede leer el archivo de configuración de la máquina %1:
%2.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file macchina : %1</source>
        <translation>No se puede leer el archivo de máquina: %1</translation>
    </message>
    <message>
        <source>File macchina : %1
versione installata : %2  incompatibile 
con versione progetto : %3</source>
        <translation>Archivo de máquina: %1
versión instalada: %2, incompatible
con la versión del proyecto: %3</translation>
    </message>
    <message>
        <source>File macchina non riconosciuto</source>
        <translation>Archivo de máquina no reconocido</translation>
    </message>
    <message>
        <source>Macchina o costruttore non supportati</source>
        <translation>Máquina o fabricante no compatibles</translation>
    </message>
    <message>
        <source>Impossibile caricare i files macchina !</source>
        <translation>¡No se pueden cargar los archivos de máquina!</translation>
    </message>
    <message>
        <source>Files macchina presenti nel progetto
non congruenti con quelli installati !</source>
        <translation>¡Los archivos de máquina del proyecto
no coinciden con los instalados!</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- %2
linea : %3 --- colonna : %4</source>
        <translation>Error en el archivo Xml: %1 --- %2
línea: %3 --- columna: %4</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- linea %2
tag : %3
attributi : %4 --- %5</source>
        <translation>Error en el archivo Xml: %1 --- línea %2
etiqueta: %3
atributos: %4 --- %5</translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation>Nodrix</translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation>No se puede abrir el archivo %1:
%2</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1:
%2</source>
        <translation>No se puede leer el archivo %1:
%2</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1:
%2</source>
        <translation>No se puede escribir el archivo %1:
%2</translation>
    </message>
    <message>
        <source>Archivio corrotto !!</source>
        <translation>¡Archivo dañado!</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Status : %4</source>
        <translation>Clase: %1
Versión: %2 --- Versión cargada: %3
Status: %4</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Funzione : %4
Versione oggetto sconosciuta</source>
        <translation>Clase: %1
Versión: %2 --- Versión cargada: %3
Función: %4
Versión de objeto desconocida</translation>
    </message>
    <message>
        <source>Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro</source>
        <translation>En el pat %1, en la caída n.º %2, no está configurado el número de hilos en trabajo</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia non sono sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
Algunos puntos utilizados en el pat %1 y en el pat %2 en la caída %3 prevén movimientos de levas.
Estos movimientos solo son posibles si estos puntos no están en la misma pasada de tejido.
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2
sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
Algunos puntos utilizados en el pat %1 y en el pat %2
en la caída %3 prevén movimientos de levas.
Estos movimientos solo son posibles si estos puntos distan al menos %4 pasos.
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
El pat %1 y el pat %2 en la caída %3 prevén movimientos de levas.
Estos movimientos están demasiado próximos en presencia de la selección de carga de ganchos.
Es necesario que entre estos movimientos haya al menos %4 paso(s).
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
El pat %1 y el pat %2 en la caída %3 prevén movimientos de levas.
Estos movimientos están demasiado próximos en presencia de la selección de descarga de ganchos.
Es necesario que entre estos movimientos haya al menos %4 paso(s).
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat %1 ed il Pat %2  richiedono:
- cambi Posizione del Guidafilo %3 gruppo %4
E&apos; possibile se fra questi cambi
ci sono almeno %5 aghi di distanza.
E&apos; necessario modificare il Disegno !</source>
        <translation>Atención:
El Pat %1 y el Pat %2 requieren:
- cambios de posición del guiahílos %3 grupo %4
Es posible si entre estos cambios
hay al menos %5 agujas de distancia.
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.
Tali movimenti non sono possibili sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
Entre el pat %1 y el pat %2 son necesarios cambios de guiahílos con superposición.
Estos movimientos no son posibles en la misma pasada de tejido.
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.
Tali entrate o uscite non sono possibili sullo stesso rango di maglia.
 Per procedere è necessario modificare uno dei due pat</source>
        <translation>Atención:
Entre el pat %1 y el pat %2 son necesarias entradas o salidas de guiahílos.
Estas entradas o salidas no son posibles en la misma pasada de tejido.
Para continuar es necesario modificar uno de los dos pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 necessita di entrata e/o uscita di guidafili.
Tali cambi non sono possibili in presenza di camma di trattenuto.
Per procedere è necessario modificare il pat</source>
        <translation>Atención:
El pat %1 necesita entrada y/o salida de guiahílos.
Estos cambios no son posibles en presencia de la leva de carga.
Para continuar es necesario modificar el pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Disegno sono presenti Punti Maglia:
Flottato + Fuori Lavoro + Trattenuto.
E necessario eliminare uno dei tre !</source>
        <translation>Atención:
El Diseño contiene los puntos:
Flotado + Fuera de Trabajo + Cargado.
¡Es necesario eliminar uno de los tres!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo nel Primo Transfer.
E&apos; necessario modificare i Pat !</source>
        <translation>Atención:
Del Pat %1 al Pat %2 está prevista:
- entrada/salida/cambio de guiahílos
Esto solo es posible en la Primera Transferencia.
¡Es necesario modificar los Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Primo Transfer è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo se c&apos;è il
trasferimento di Tutti i Settori.
E&apos; necessario modificare Disegno o Pat !</source>
        <translation>Atención:
En la Primera Transferencia está prevista:
- entrada/salida/cambio de guiahílos
Esto solo es posible si hay
transferencia de todos los sectores.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 c&apos;è un cambio di guidafili : 
- è possibile cambiare il guidafilo 1 con il 2 o il 3
- è possibile cambiare il guidafilo 2 con il 3
- altre sequenze non sono possibili
E&apos; necessario modificare i Pat !</source>
        <translation>Atención:
Del Pat %1 al Pat %2 hay un cambio de guiahílos:
- es posible cambiar el guiahílos 1 por el 2 o el 3
- es posible cambiar el guiahílos 2 por el 3
- no son posibles otras secuencias
¡Es necesario modificar los Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Guidafilo N.%1 assegnato al primo Pat applicato :
deve essere mantenuto in Tutti i Pat successivi !
E&apos; necessario modificare Pat successivi !</source>
        <translation>Atención:
Guiahílos n.º %1 asignado al primer Pat aplicado:
¡debe mantenerse en todos los Pat siguientes!
¡Es necesario modificar los Pat siguientes!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- fine movimento entrata camme Trattenuto/Scaricato
Tali movimenti non sono possibili sullo stesso Rango di Maglia.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>Atención:
En el paso %1, en la caída %2, hay:
- entrada-salida-cambio de guiahílos
- fin del movimiento de entrada de las levas de carga/malla
Estos movimientos no son posibles en la misma pasada de tejido.
Para continuar es necesario modificar el Diseño o el/los Pat implicados</translation>
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
        <translation>Atención:
En el paso %1 (paso 3 de carga de ganchos), en la caída %2,
hay:
- entrada-salida-cambio de guiahílos
- levas de carga/malla que requieren una salida parcial
Estos movimientos no son posibles en la misma pasada de tejido
porque están demasiado próximos.
Para continuar es necesario modificar el Diseño o el/los Pat implicados</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>Atención:
En el paso %1 (paso 3 de descarga de ganchos), en la caída %2, hay:
- entrada-salida-cambio de guiahílos
- levas de carga/malla que requieren una salida parcial
Estos movimientos no son posibles en la misma pasada de tejido
porque están demasiado próximos.
Para continuar es necesario modificar el Diseño o el/los Pat implicados</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè
dall&apos;ago di inizio all&apos;ago di fine del(i) colore(i) ci sono meno di %2 aghi di distanza.
In alternativa è necessario modificare il disegno!</source>
        <translation>Atención:
El offset de puntos para el desequilibrio del/de los color(es) %1 se ha puesto a cero porque
entre la aguja inicial y la aguja final del/de los color(es) hay menos de %2 agujas de distancia.
¡Como alternativa, es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Disegno Nitido&quot; richiede
il guidafilo 6 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la caída %1, el &quot;Diseño Nítido&quot; requiere
el guiahílos 6 en todo el proyecto.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
El Pat &apos;%1&apos; y el Pat &apos;%2&apos; requieren:
- salida y entrada de guiahílos
Es posible si entre estos cambios
hay al menos %3 agujas de distancia.
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel primo e ultimo rango della caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En la primera y en la última pasada de la caída %1
en &quot;Diseño Nítido&quot; no es posible añadir el color.
Ver Pat: %2
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia:
non è possibile associare PAT
di &quot;Disegno Nitido&quot; con altri PAT.E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido
no es posible asociar PAT
de &quot;Diseño Nítido&quot; con otros PAT.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En los pasos %1 de la carga de ganchos, en la caída %2,
en &quot;Diseño Nítido&quot; no es posible añadir el color.
Ver Pat: %3
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En el paso %1 de la carga de ganchos, en la caída %2,
en &quot;Diseño Nítido&quot; no es posible añadir el color.
Ver Pat: %3
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En los pasos 1 y 2 de la descarga de ganchos, en la caída %1,
en &quot;Diseño Nítido&quot; no es posible añadir el color.
Ver Pat: %2
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En el paso 3 de la descarga de ganchos, en la caída %1,
en &quot;Diseño Nítido&quot; no es posible añadir el color.
Ver Pat: %2
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Colore&quot; richiede
il guidafilo 1-2-3 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la caída %1, el &quot;Color&quot; requiere
los guiahílos 1-2-3 en todo el proyecto.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili colore
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
El Pat &apos;%1&apos; y el Pat &apos;%2&apos; requieren:
- salida y entrada de guiahílos de color
Es posible si entre estos cambios
hay al menos %3 agujas de distancia.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nel primo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;,
en la primera pasada de la caída %3,
no es posible añadir el color en el área de color.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nell&apos;ultimo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;,
en la última pasada de la caída %3,
no es posible añadir el color en el área de color.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de levas.
NO es posible dentro del mismo modo &apos;NÍTIDO&apos;.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;NITIDO&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de levas.
Entre modos &apos;NÍTIDO&apos;, esto solo es posible después de %4 pasos.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de levas.
NO es posible dentro del mismo modo &apos;COLOR&apos;.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;COLORE&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de levas.
Entre modos &apos;COLOR&apos;, esto solo es posible después de %4 pasos.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de guiahílos.
NO es posible dentro del mismo modo &apos;NÍTIDO&apos;.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>Atención:
En la transición entre el Pat &apos;%1&apos; y el Pat &apos;%2&apos;
de la caída %3 se requiere un movimiento de guiahílos.
NO es posible dentro del mismo modo &apos;COLOR&apos;.
¡Es necesario modificar el diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT &apos;COLORE&apos; di modalità diversa (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido no es posible asociar:
PAT &apos;COLOR&apos; (%1) con otros PAT &apos;COLOR&apos; de modo distinto (%2).
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT NON &apos;COLORE&apos; (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido no es posible asociar:
PAT &apos;COLOR&apos; (%1) con otros PAT que NO son &apos;COLOR&apos; (%2).
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En los pasos %1 de la carga de ganchos, en la caída %2,
en &quot;Modo Color&quot; no es posible añadir el color.
Ver Pat: %3
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %4
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En el paso %1 de la carga de ganchos, para las primeras %2 agujas, en la caída %3,
en &quot;Modo Color&quot; no es posible añadir el color.
Ver Pat: %4
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 del carico uncini) sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
in presenza di :
- entrate/uscite/cambi di guidafili
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En el paso %1 (paso 3 de la carga de ganchos), en la caída %2,
en &quot;Modo Color&quot; no es posible añadir el color
en presencia de:
- entradas/salidas/cambios de guiahílos
Ver Pat: %3
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En los pasos 1 y 2 de la descarga de ganchos, en la caída %1,
en &quot;Modo Color&quot; no es posible añadir el color.
Ver Pat: %2
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
En el paso 3 de la descarga de ganchos, para las primeras %1 agujas, en la caída %2,
en &quot;Modo Color&quot; no es posible añadir el color.
Ver Pat: %3
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con altri PAT di modalità incompatibile (%3).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido %1 no es posible asociar:
PAT &apos;ESPECIAL&apos; (%2) con otros PAT de modo incompatible (%3).
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con guidafili incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido %1 no es posible asociar:
PAT &apos;ESPECIAL&apos; (%2) con PAT (%3) con guiahílos incompatibles.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con configurazione camme incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
En la misma pasada de tejido %1 no es posible asociar:
PAT &apos;ESPECIAL&apos; (%2) con PAT (%3) con configuración de levas incompatible.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Passaggio da PAT &apos;SPECIALE&apos; (%1) rango %2 a PAT (%3)
e&apos; possibile solo dopo almeno un rango completo in modalità &apos;SPECIALE&apos;.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
La transición del PAT &apos;ESPECIAL&apos; (%1), pasada %2, al PAT (%3)
solo es posible después de al menos una pasada completa en modo &apos;ESPECIAL&apos;.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
Del PAT %1 al PAT %2, pasada %3, se requiere:
- ENTRADA/SALIDA del GUIAHÍLOS 2/3 GR1.
¡Es posible si hay al menos %4 agujas de distancia!
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
Del PAT %1 al PAT %2, pasada %3, se requiere:
- SALIDA/ENTRADA del GUIAHÍLOS 2/3 GR1.
¡Es posible si hay al menos %4 agujas de distancia!
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %3 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>Atención:
Del PAT %1 al remate de puntos, pasada %2, se requiere:
- ENTRADA/SALIDA del GUIAHÍLOS 2/3 GR1.
¡Es posible si hay al menos %3 agujas de distancia!
¡Es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili 2 e 3 del GR1.
Non e&apos; possibile sullo stesso rango di maglia!
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Atención:
Pasada %1: del PAT en modo ESPECIAL (%2)
al PAT en modo ESPECIAL (%3) se requiere:
- Cambio de guiahílos 2 y 3 del GR1.
¡No es posible en la misma pasada de tejido!
¡Para continuar es necesario modificar el Diseño o el PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili GR2/GR1.
E&apos; possibile solo se nell&apos;ultimo rango di maglia :
- Tutti gli aghi sono in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Atención:
Pasada %1: del PAT en modo ESPECIAL (%2)
al PAT en modo ESPECIAL (%3) se requiere:
- Cambio de guiahílos GR2/GR1.
Solo es posible si en la última pasada de tejido:
- Todas las agujas están en modo ESPECIAL
¡Para continuar es necesario modificar el Diseño o el PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)
con presenza di PAT in modalità SPECIALE (%3) :
- Tutti gli aghi devono essere in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>Atención:
En el %1 paso de la carga de ganchos en la caída 5 (pasada %2)
con presencia de PAT en modo ESPECIAL (%3):
- Todas las agujas deben estar en modo ESPECIAL
¡Para continuar es necesario modificar el Diseño o el PAT!</translation>
    </message>
    <message>
        <source>Attenzione:
Usata &quot;Camma Rientro Parziale Uncini&quot; nel Bordo n. %1.
Passo di movimento incompatibile con la dimensione del bordo.
Anticipare il movimento di %2 passo(i) o ampliare il bordo!</source>
        <translation>Atención:
Se ha usado la &quot;Leva de Retorno Parcial de Ganchos&quot; en el Dobladillo n.º %1.
Paso de movimiento incompatible con el tamaño del dobladillo.
¡Anticipe el movimiento %2 paso(s) o amplíe el dobladillo!</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 4 cadute alla linea %2
non può essere usato in una zona a 8 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
El PAT %1 de 4 caídas en la línea %2
no puede usarse en una zona de 8 caídas.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 8 cadute alla linea %2
non può essere usato in una zona a 4 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención:
El PAT %1 de 8 caídas en la línea %2
no puede usarse en una zona de 4 caídas.
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation>Atención:
¡Una zona de 4 caídas debe empezar en el primer paso o después de %1 pasos!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 8 a 4 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención en el paso %1:
En los últimos 3 pasos antes de pasar de 8 a 4 caídas,
¡NO se permite la presencia del Modo Color o Nítido!
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o termina all&apos;ultimo passo o %1 passi prima!</source>
        <translation>Atención:
¡Una zona de 4 caídas debe terminar en el último paso o %1 pasos antes!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 4 a 8 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>Atención en el paso %1:
En los últimos 3 pasos antes de pasar de 4 a 8 caídas,
¡NO se permite la presencia del Modo Color o Nítido!
¡Es necesario modificar el Diseño o el Pat!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 3 passi della zona a 8 cadute !
- nel primo passo della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Atención en el paso %1:
En la transición de zona de 8 caídas a zona de 4 caídas,
no se permite el inicio de dobladillo con ganchos:
- ¡en los últimos 3 pasos de la zona de 8 caídas!
- ¡en el primer paso de la zona de 4 caídas!
¡Es necesario resolver el conflicto!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito la fine bordo con uncini
negli ultimi 3 passi della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Atención en el paso %1:
En la transición de zona de 8 caídas a zona de 4 caídas,
¡no se permite el final de dobladillo con ganchos
en los últimos 3 pasos de la zona de 8 caídas!
¡Es necesario resolver el conflicto!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito la fine bordo con uncini
negli ultimi 2 passi della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Atención en el paso %1:
En la transición de zona de 4 caídas a zona de 8 caídas,
¡no se permite el final de dobladillo con ganchos
en los últimos 2 pasos de la zona de 4 caídas!
¡Es necesario resolver el conflicto!</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 2 passi della zona a 4 cadute !
- nel primo passo della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>Atención en el paso %1:
En la transición de zona de 4 caídas a zona de 8 caídas,
no se permite el inicio de dobladillo con ganchos:
- ¡en los últimos 2 pasos de la zona de 4 caídas!
- ¡en el primer paso de la zona de 8 caídas!
¡Es necesario resolver el conflicto!</translation>
    </message>
    <message>
        <source>Attenzione:
Non è consentito avere la Modalità Fili 0:
- nel 1° passo dopo il carico maglia !
- nell&apos;ultimo passo prima dello scarico maglia !
Per continuare è necessario modificare il Disegno !</source>
        <translation>Atención:
No se permite tener el Modo Hilos 0:
- ¡en el 1.er paso después del montaje de puntos!
- ¡en el último paso antes del remate de puntos!
¡Para continuar es necesario modificar el Diseño!</translation>
    </message>
    <message>
        <source>Attenzione:
Nessuna zona SCS presente !
Per continuare è necessario inserire almeno una zona o disabilitare l&apos;SCS.
Vuoi inserire una zona iniziale ?</source>
        <translation>Atención:
¡No hay ninguna zona SCS!
Para continuar es necesario insertar al menos una zona o deshabilitar el SCS.
¿Desea insertar una zona inicial?</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti Zone SCS !
Disabilitando l&apos;SCS vuoi eliminare anche le zone ?</source>
        <translation>Atención:
¡Hay Zonas SCS!
Al deshabilitar el SCS, ¿desea eliminar también las zonas?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Inserire/Eliminare Zone SCS:
può comportare l&apos;eliminazione
dell&apos;Acquisizione SCS !!</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
Insertar/Eliminar Zonas SCS
puede implicar la eliminación
de la Adquisición SCS.</translation>
    </message>
    <message>
        <source>Attenzione :
SCS è in Controllo Taglia !!!
 Alcune modifiche al progetto non sono possibili !
Per sbloccarle è necessario selezionare:
&quot;Abilita Acquisizione&quot;
ed eliminare l&apos;Acquisizione SCS
Il Controllo Taglia verrà perso !</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
¡Algunos cambios en el proyecto no son posibles!
Para desbloquearlos es necesario seleccionar
&quot;Habilitar Adquisición&quot;
y eliminar la Adquisición SCS.
¡El Control de Talla se perderá!</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Apportando modifiche potrebbe essere richiesta l&apos;eliminazione dell&apos;Acquisizione SCS.</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
Si realiza cambios, podría ser necesario eliminar la Adquisición SCS.</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
¡La Adquisición SCS se eliminará!
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi salvare anche l&apos;acquisizione SCS presente nel progetto ?</source>
        <translation>Atención:
¿Desea guardar también la Adquisición SCS del proyecto?</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation>Atención:
¿Desea guardar los cambios realizados?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Per continuare è necessario associare tutti i Vector Active
di default ad un guidafilo o eliminare l&apos;acquisizione SCS
Vuoi eliminare Acquisizione SCS ?</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
Para continuar es necesario asociar todos los Vector Active
predeterminados a un guiahílos o eliminar la Adquisición SCS.
¿Desea eliminar la Adquisición SCS?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Esegui solo le piccole modifiche al disegno
necessarie dopo un &quot;Crea Taglia&quot; altrimenti
&quot;Acquisizione SCS&quot; non sarà più idonea
Vuoi Continuare ?</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
Realice solo los pequeños cambios en el diseño
necesarios después de un &quot;Crear Talla&quot;; de lo contrario,
la &quot;Adquisición SCS&quot; dejará de ser válida.
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Operazioni possibili:
- Adattare i dati Acq. SCS al ridimensionamento
- Annullare la modifica del ridimensionamento</source>
        <translation>Atención:
¡El SCS está en Control de Talla!
Operaciones posibles:
- Adaptar los datos de Adq. SCS al redimensionamiento
- Anular la modificación del redimensionamiento</translation>
    </message>
    <message>
        <source>Attenzione:
SCS abilitato !
Non tutte le cadute abilitate al controllo nelle zone %1
hanno un alimentatore BodyScs in lavoro
Queste cadute verranno automaticamente disabilitate al controllo</source>
        <translation>Atención:
¡SCS habilitado!
No todas las caídas habilitadas para el control en las zonas %1
tienen un alimentador BodyScs en trabajo.
Estas caídas se deshabilitarán automáticamente para el control.</translation>
    </message>
    <message>
        <source>Nuova Taglia Creata con Successo !</source>
        <translation>¡Nueva Talla creada correctamente!</translation>
    </message>
    <message>
        <source>Progetto ridimensionato con successo !</source>
        <translation>¡Proyecto redimensionado correctamente!</translation>
    </message>
    <message>
        <source>Ridimensionamento matrice pixel fallito !</source>
        <translation>¡Error al redimensionar la matriz de píxeles!</translation>
    </message>
    <message>
        <source>Ridimensionamento piani disegno fallito !</source>
        <translation>¡Error al redimensionar los planos de diseño!</translation>
    </message>
    <message>
        <source>Ridimensionamento struttura progetto fallita !</source>
        <translation>¡Error al redimensionar la estructura del proyecto!</translation>
    </message>
    <message>
        <source>Adattamento piani disegno fallito !</source>
        <translation>¡Error al adaptar los planos de diseño!</translation>
    </message>
    <message>
        <source>IL PROGETTO SORGENTE E&apos; IN CONTROLLO TAGLIA,
I DATI DELL&apos;ACQUISIZIONE SCS SARANNO ADATTATI
AUTOMATICAMENTE AL PROGETTO DESTINAZIONE</source>
        <translation>EL PROYECTO DE ORIGEN ESTÁ EN CONTROL DE TALLA;
LOS DATOS DE LA ADQUISICIÓN SCS SE ADAPTARÁN
AUTOMÁTICAMENTE AL PROYECTO DE DESTINO.</translation>
    </message>
    <message>
        <source>Attenzione :
Creazione Nuova Taglia fallita !!
Ripetere l&apos;operazione ed eventualmente
deselezionare l&apos;opzione &quot;Adatta i Ranghi&quot;</source>
        <translation>Atención:
¡Error al crear la Nueva Talla!
Repita la operación y, si es necesario,
desmarque la opción &quot;Adaptar las Pasadas&quot;.</translation>
    </message>
    <message>
        <source>Ridimensionamento fallito !!
Ripetere l&apos;operazione o
inserire un diverso N. ranghi.</source>
        <translation>¡Error en el redimensionamiento!
Repita la operación o
introduzca otro n.º de pasadas.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano SCS: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone SCS !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Atención:
Plano SCS: ¡el redimensionamiento requiere
la eliminación de una o más Zonas SCS!
¡Operación no posible!
Introduzca otro n.º de pasadas
o modifique estas Zonas.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Maglia !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Atención:
Plano de Comandos: ¡el redimensionamiento requiere
la eliminación de una o más Zonas de Puntos!
¡Operación no posible!
Introduzca otro n.º de pasadas
o modifique estas Zonas.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone %1 !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Atención:
Plano de Comandos: ¡el redimensionamiento requiere
la eliminación de una o más Zonas %1!
¡Operación no posible!
Introduzca otro n.º de pasadas
o modifique estas Zonas.</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Velocità !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>Atención:
Plano de Comandos: ¡el redimensionamiento requiere
la eliminación de una o más Zonas de Velocidad!
¡Operación no posible!
Introduzca otro n.º de pasadas
o modifique estas Zonas.</translation>
    </message>
    <message>
        <source>Attenzione :
dal progetto sono stati rimossi comandi
insriti manualmente dall&apos;utente.
E&apos; necessario inserirli di nuovo manualmente :
%1</source>
        <translation>Atención:
Se han eliminado del proyecto comandos
introducidos manualmente por el usuario.
Es necesario volver a introducirlos manualmente:
%1</translation>
    </message>
    <message>
        <source>Attenzione :
le modifiche fatte comportano :
%1
%2
</source>
        <translation>Atención:
Los cambios realizados implican:
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
        <translation>¿DESEA PASAR EL PROYECTO A MODO PROTEGIDO?

Si elige Sí:
- el proyecto se guardará automáticamente
- las herramientas gráficas funcionarán en modo especial
- podrá salir de este modo en cualquier momento

Si elige No:
- podrá trabajar con el proyecto con normalidad</translation>
    </message>
    <message>
        <source>- rimozione zone comandi utente</source>
        <translation>- eliminación de zonas de comandos del usuario</translation>
    </message>
    <message>
        <source>- inserimento valori default zone comandi</source>
        <translation>- inserción de valores predeterminados en zonas de comandos</translation>
    </message>
</context>
</TS>
