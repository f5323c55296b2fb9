<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="szh" sourcelanguage="it">
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <location filename="../src/messages/qnodrixmessagebox.cpp" line="+26"/>
        <location line="+9"/>
        <location line="+9"/>
        <location line="+62"/>
        <location line="+9"/>
        <source>Si</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-88"/>
        <location line="+9"/>
        <location line="+9"/>
        <location line="+62"/>
        <location line="+9"/>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-70"/>
        <source>Ignora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <source>ADATTA
Acquisizione SCS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ANNULLA
Modifica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+8"/>
        <location line="+17"/>
        <location line="+8"/>
        <source>Chiudi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+17"/>
        <source>Dettagli</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Salva con nome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+204"/>
        <location line="+15"/>
        <source>Errore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Classe:	%1
Versione:	%2
Versione caricata:	%3
Funzione:	%4

Messaggio:	%5
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+15"/>
        <location line="+12"/>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Attenzione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Informazione</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Attenzione:
questo software macchina richiede sia installata 
la Piattaforma Nodrix versione %1 o superiore 
Non è possibile continuare senza aggiornare la Piattaforma !</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
