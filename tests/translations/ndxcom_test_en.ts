<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="it">
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No way</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation>Nodrix (translated)</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation>Warning:
Do you want to save your changes?</translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation>Cannot open the file %1:
%2</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation>Warning:
A 4-feed zone starts either at the first step or after %1 steps!</translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation>ADAPT
the SCS acquisition data to the new size</translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation>CANCEL
Change</translation>
    </message>
</context>
</TS>
