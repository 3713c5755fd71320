<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Für das Verzeichnis wurde in diesem Bereich kein Pfad gefunden.</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin – Protokoll</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>Was die Werkzeuge gemeldet haben und was über diesen Lauf zu wissen ist</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Alles &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>Als Text &amp;speichern …</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Dravolin</source>
        <translation>Dravolin</translation>
    </message>
    <message>
        <source>Choose what to do</source>
        <translation>Auswählen, was geschehen soll</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Konfiguration</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>Konfigurations&amp;ordner zeigen</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Öffnet den Ordner, in dem Ihre Konfigurationen und Tabellen liegen</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Zuordnungstabelle</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Quelldateien überschreiben</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Keine Sicherungskopie neben jeder geänderten Datei behalten</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Zuordnungs&amp;tabelle erstellen</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Die Werte eines Attributs in einer neuen Tabelle sammeln, statt Dateien zu ändern</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Neue &amp;Instanz-UIDs erzeugen</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Jeder Datei außerdem eine neue SOP Instance UID geben</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>&amp;Nur neue Instanz-UIDs erzeugen</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Nichts als die SOP Instance UIDs ändern</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Aus: Jedes Original bleibt als NAME.bak erhalten, mit dem Patientennamen darin.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Den Fall beschreiben</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>Fall-I&amp;D</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Wird zur Patienten-ID und zum Ende der Study Instance UID; nur Ziffern</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>Dia&amp;gnose</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Wird zum Namen des Patienten</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>Patienten-ID; leer löscht sie</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Name des Patienten; leer löscht ihn</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>&amp;Schlagwörter</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Wird zum Kommentar der Studie</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>&amp;Mitwirkende</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Wird zur Accession Number (Auftragsnummer)</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Kommentar der Studie; leer löscht ihn</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Accession Number; leer löscht sie</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>&amp;UID-Wurzel</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>Damit beginnt die Study Instance UID: 1.2. oder 2.25. und mindestens 20 Ziffern</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>Wurzel &amp;erzeugen</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Eine neue Wurzel unter 2.25 erzeugen</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Gültigkeit der UID-Wurzel</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>UID-Wurzel noch nicht geprüft</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Die Daten ablegen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Fragt, bevor die Website geöffnet wird</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Ablagefläche</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Anleitung, Tastenkürzel, Versionen</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>Protokoll &amp;anzeigen</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Zeigt, was die Werkzeuge im letzten Lauf gemeldet haben, bei dem es etwas zu melden gab</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>dieser Ordner: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Mitgelieferte Konfiguration</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Mitgelieferter Standard</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Zuordnungstabelle erstellt. Die Datei liegt auf dem Schreibtisch.
Es trat %1 Fehler auf.
Siehe die Meldungen auf der Konsole.</numerusform>
            <numerusform>Zuordnungstabelle erstellt. Die Datei liegt auf dem Schreibtisch.
Es traten %1 Fehler auf.
Siehe die Meldungen auf der Konsole.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Fertig …
Es trat %1 Fehler auf.
Siehe die Meldungen auf der Konsole.</numerusform>
            <numerusform>Fertig …
Es traten %1 Fehler auf.
Siehe die Meldungen auf der Konsole.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Zuordnungstabelle erstellt. Die Datei liegt auf dem Schreibtisch.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Fertig!
Neue Werte in %1 Datei eingetragen.
Übersprungene DICOM-Dateien: %3.</numerusform>
            <numerusform>Fertig!
Neue Werte in %1 Dateien eingetragen.
Übersprungene DICOM-Dateien: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Fertig!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Fertig, mit %1 Fehler.</numerusform>
            <numerusform>
Fertig, mit %1 Fehlern.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Fertig. %1 Datei mit Fehlern.</numerusform>
            <numerusform>
Fertig. %1 Dateien mit Fehlern.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

Die erstellte Zuordnungstabelle liegt auf dem Schreibtisch.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Neue Werte in %1 Datei eingetragen.
Übersprungene DICOM-Dateien: %3.

</numerusform>
            <numerusform>

Neue Werte in %1 Dateien eingetragen.
Übersprungene DICOM-Dateien: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Achtung: Es wurden DICOMDIR-Dateien gefunden.
Sie enthalten keine zu anonymisierenden DICOM-Attribute, wohl aber Patientendaten:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Das Protokoll konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Ihre Konfigurationsdatei enthält kein Feld &lt;LUT_XX&gt;, das angibt, aus welchem DICOM-Attribut die Zuordnungstabelle erstellt werden soll.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>Es wird die mitgelieferte Standardkonfiguration „DefaultAnonymizationConfiguration.txt“ verwendet.</translation>
    </message>
    <message>
        <source>
The application looks for &apos;AnonymizationConfiguration.txt&apos; in 4 locations, in this order:

1- In the Application Bundle itself
2- On the Desktop
3- In the folder where the Application Bundle is
4- In ~/Library/Applications Support/Dravolin/

If not found in any of those places, it reverts to the default configuration, which may not be what you want.


</source>
        <translation>
Das Programm sucht „AnonymizationConfiguration.txt“ an 4 Orten, in dieser Reihenfolge:

1. im Programmpaket selbst
2. auf dem Schreibtisch
3. in dem Ordner, in dem das Programm liegt
4. in ~/.local/share/Dravolin/

Ist die Datei an keinem dieser Orte, wird die Standardkonfiguration verwendet, die vielleicht nicht das ist, was Sie wollen.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Kopie im Konfigurationsordner speichern &amp; beenden</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>Der Konfigurationsordner konnte weder geöffnet noch angelegt werden</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>Dieser Konfigurationsordner konnte weder geöffnet noch angelegt werden:
%1

Eine Kopie der Standardkonfiguration wird stattdessen auf dem Schreibtisch gespeichert.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Auf dem Schreibtisch speichern &amp; beenden</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>Die Website %1 im Browser öffnen?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Ja, gern</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>UID kann gültig sein</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>UID-Wurzel ist ungültig und wird ersetzt</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Keine Zuordnungstabellen gefunden</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Keine Zuordnungstabelle verwenden</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>Zuordnungstabelle erstellen</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonymisieren</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Ordner oder DICOM-Dateien hier ablegen, um eine Zuordnungstabelle zu erstellen</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Ordner oder DICOM-Dateien hier ablegen, um sie zu anonymisieren</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Ordner auswählen …</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Dateien auswählen …</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Dateien auswählen</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Noch einmal ablegen</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>Die Zuordnungstabelle wurde gefunden, konnte aber nicht gelesen werden.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Ausgewählte Zuordnungstabelle: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Ihre Konfigurationsdatei nennt keine Attribute, die anonymisiert werden sollen!</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Pfad: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Kopie der Standardkonfiguration auf dem Schreibtisch speichern &amp; beenden</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Sehr viele einzelne Dateien abgelegt</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>Sie haben sehr viele einzelne Dateien abgelegt: Schneller geht es, wenn Sie den Ordner ablegen, der sie enthält.

Enthält dieser Ordner Unterordner, die nicht anonymisiert werden sollen, legen Sie die Dateien vorübergehend in einen neuen Ordner und legen Sie diesen ab.

Mit den abgelegten Dateien fortfahren?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>Nein, neuer Versuch</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Ja, weiter!</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Ihre Daten werden gleich anonymisiert</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Die Quelldaten werden überschrieben. Fortfahren?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>Nein, abbrechen</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, Quelldaten überschreiben</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>Die Study Instance UID wäre ungültig</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>Fall-ID und UID-Wurzel ergäben zusammen eine ungültige Study Instance UID.
Das ist nicht zulässig.

Erlaubt sind nur Ziffern und „.“, zusammen höchstens 64 Zeichen.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Keine Dateihandles mehr verfügbar!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Bitte verarbeiten Sie Ihre Daten in etwas kleineren Portionen.

Das hätte dennoch nicht geschehen dürfen. Wenn es noch einmal vorkommt, teilen Sie es uns bitte mit.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Ihre Konfigurationsdatei nennt kein Attribut, das zur ausgewählten Zuordnungstabelle passt!</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Ausgewählte Zuordnungstabelle: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Für das Feld &lt;old_value&gt; fehlt der Wert &lt;missing&gt;.

(Siehe die mitgelieferte Beispieldatei)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Zuordnungstabelle für das Attribut (%1) wird erstellt …</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
In Arbeit …</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>Die Verarbeitung kann *sehr* lange dauern …

Sie läuft im Hintergrund,
Sie können also mit Ihrem Computer weiterarbeiten
(und müssen hier nicht zusehen).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
In Arbeit … %1/%2 Ordner</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Werte der Zuordnungstabelle werden eingetragen … %1/%2 Ordner</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Über Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Die Anleitung ist nicht installiert.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Werkzeuge, Bilder und Standardkonfiguration:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>einen Ordner auswählen, statt ihn abzulegen</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>das Protokoll des letzten Laufs anzeigen</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>beenden</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt und ein unterstrichener Buchstabe: zum Feld springen oder das Kästchen umschalten</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>Im Protokoll %1: suchen, %2: schließen</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Was in den Dateien geändert wird</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Eine Tabelle ist eine Datei namens AnonymizationLUT_NAME.txt in
%1
oder
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Neue Werte für ein Attribut</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>In Arbeit. Wird noch etwas abgelegt, läuft es gleichzeitig.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Kein Wert gefunden, keine Datei geändert</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 Wert gefunden, keine Datei geändert</numerusform>
            <numerusform>%1 Werte gefunden, keine Datei geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Keine Datei gefunden</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Keine Datei geändert</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 Datei geändert</numerusform>
            <numerusform>%1 Dateien geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 unverändert</numerusform>
            <numerusform>%1 unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 ausgelassen</numerusform>
            <numerusform>%1 ausgelassen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>in %1 Ordner</numerusform>
            <numerusform>in %1 Ordnern</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>Patienten-ID; leer löscht sie</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Zusammen mit der Wurzel zu lang</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Nur Ziffern sind möglich</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
</context>
</TS>
