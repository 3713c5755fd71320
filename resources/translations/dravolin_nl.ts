<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Geen pad gevonden voor de map in het domein.</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin – Logboek</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>Wat de hulpprogramma&apos;s meldden en wat u over deze verwerking moet weten</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Zoeken in het logboek</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Alles &amp;kopiëren</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>Op&amp;slaan als tekst…</translation>
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
        <translation>Kies wat er moet gebeuren</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configuratie</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>Configuratie&amp;map tonen</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Opent de map waarin uw configuraties en tabellen staan</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Opzoektabel</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Bronbestanden overschrijven</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Geen reservekopie naast elk gewijzigd bestand bewaren</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Opzoek&amp;tabel opbouwen</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>De waarden van één attribuut in een nieuwe tabel verzamelen in plaats van bestanden te wijzigen</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Nieuwe &amp;instance-UID&apos;s genereren</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Elk bestand ook een nieuwe SOP Instance UID geven</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>&amp;Alleen nieuwe instance-UID&apos;s genereren</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Niets anders wijzigen dan de SOP Instance UID&apos;s</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Uit: elk origineel blijft bewaard als NAAM.bak, met de patiëntnaam erin.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Beschrijf de casus</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>Casus-I&amp;D</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Wordt de patiënt-ID en het einde van de Study Instance UID; alleen cijfers</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Cijfers</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>Dia&amp;gnose</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Wordt de patiëntnaam</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>Patiënt-ID; leeg wist deze</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Patiëntnaam; leeg wist deze</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>T&amp;refwoorden</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Wordt het commentaar bij het onderzoek</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>Bron&amp;vermelding</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Wordt het accession number</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Commentaar bij onderzoek; leeg wist dit</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Accession number; leeg wist dit</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>&amp;UID-wortel</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>De Study Instance UID begint ermee: 1.2. of 2.25. en minstens 20 cijfers</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>Wortel g&amp;enereren</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Een nieuwe wortel onder 2.25 maken</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Geldigheid van de UID-wortel</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>UID-wortel nog niet gecontroleerd</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Zet de gegevens neer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Bezig</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Vraagt eerst of de website geopend mag worden</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Neerzetgebied</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Handleiding, sneltoetsen, versies</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>&amp;Logboek tonen</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Toont wat de hulpprogramma&apos;s meldden bij de laatste verwerking waarbij er iets te melden was</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>deze map: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Meegeleverde configuratie</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Meegeleverde standaard</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Opzoektabel opgebouwd. Het bestand staat op het bureaublad.
Er is %1 fout opgetreden.
Zie de meldingen op de console.</numerusform>
            <numerusform>Opzoektabel opgebouwd. Het bestand staat op het bureaublad.
Er zijn %1 fouten opgetreden.
Zie de meldingen op de console.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Klaar…
Er is %1 fout opgetreden.
Zie de meldingen op de console.</numerusform>
            <numerusform>Klaar…
Er zijn %1 fouten opgetreden.
Zie de meldingen op de console.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Opzoektabel opgebouwd. Het bestand staat op het bureaublad.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Klaar!
Opzoektabel toegepast op %1 bestand.
Overgeslagen DICOM-bestanden: %3.</numerusform>
            <numerusform>Klaar!
Opzoektabel toegepast op %1 bestanden.
Overgeslagen DICOM-bestanden: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Klaar!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Klaar, met %1 fout.</numerusform>
            <numerusform>
Klaar, met %1 fouten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Klaar. %1 bestand met fouten.</numerusform>
            <numerusform>
Klaar. %1 bestanden met fouten.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

De opgebouwde opzoektabel staat op het bureaublad.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Opzoektabel toegepast op %1 bestand.
Overgeslagen DICOM-bestanden: %3.

</numerusform>
            <numerusform>

Opzoektabel toegepast op %1 bestanden.
Overgeslagen DICOM-bestanden: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Let op: er zijn DICOMDIR-bestanden gevonden.
Ze bevatten geen te anonimiseren DICOM-attributen, maar nog wel patiëntgegevens:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Niet gevonden</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Logboek opslaan</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Het logboek kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Uw configuratiebestand bevat geen veld &lt;LUT_XX&gt; dat aangeeft met welk DICOM-attribuut de opzoektabel moet worden opgebouwd.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>De standaardconfiguratie ‘DefaultAnonymizationConfiguration.txt’ die met het programma is meegeleverd, wordt gebruikt.</translation>
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
Het programma zoekt ‘AnonymizationConfiguration.txt’ op 4 plaatsen, in deze volgorde:

1. in het programma zelf
2. op het bureaublad
3. in de map waarin het programma staat
4. in ~/.local/share/Dravolin/

Staat het bestand op geen van deze plaatsen, dan wordt de standaardconfiguratie gebruikt, die misschien niet is wat u wilt.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Kopie in configuratiemap opslaan en afsluiten</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>De configuratiemap kon niet worden geopend of gemaakt</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>De configuratiemap kon niet worden geopend of gemaakt:
%1

Een kopie van de standaardconfiguratie wordt in plaats daarvan op het bureaublad opgeslagen.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Op bureaublad opslaan en afsluiten</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>De website %1 in uw browser openen?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Ja, graag</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>UID kan geldig zijn</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>Wortel is ongeldig en wordt vervangen</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Geen opzoektabellen gevonden</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Geen opzoektabel gebruiken</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>opzoektabel opbouwen</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonimiseren</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Zet hier mappen of DICOM-bestanden neer om een opzoektabel op te bouwen</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Zet hier mappen of DICOM-bestanden neer om ze te anonimiseren</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Bestanden kiezen…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Map kiezen</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Bestanden kiezen</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Opnieuw neerzetten</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>De opzoektabel is gevonden, maar kon niet worden gelezen.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Gekozen opzoektabel: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Uw configuratiebestand noemt geen attributen om te anonimiseren!</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Pad: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Kopie van standaardconfiguratie op bureaublad opslaan en afsluiten</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Groot aantal losse bestanden neergezet</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>U hebt een groot aantal losse bestanden neergezet: het gaat sneller als u de map neerzet waarin ze staan.

Bevat die map submappen die niet geanonimiseerd mogen worden, zet de bestanden dan tijdelijk in een nieuwe map en zet die neer.

Doorgaan met de neergezette bestanden?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>Nee, opnieuw proberen</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Ja, ga door!</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Uw gegevens worden zo geanonimiseerd</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Uw brongegevens worden overschreven. Doorgaan?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>Nee, annuleren</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, brongegevens overschrijven</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>De Study Instance UID zou ongeldig zijn</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>Casus-ID en UID-wortel zouden samen een ongeldige Study Instance UID opleveren.
Dat is niet toegestaan.

Alleen cijfers en ‘.’ zijn toegestaan, met een totale lengte van hoogstens 64 tekens.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Geen bestandshandles meer beschikbaar!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Verwerk uw gegevens in iets kleinere porties.

Toch had dit niet mogen gebeuren. Laat het ons weten als het nog eens voorkomt.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Uw configuratiebestand noemt geen attribuut dat bij de gekozen opzoektabel hoort!</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Gekozen opzoektabel: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Geef de waarde &lt;missing&gt; op voor het veld &lt;old_value&gt;.

(Zie het voorbeeldbestand dat met het programma is meegeleverd)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Opzoektabel voor attribuut (%1) wordt opgebouwd…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Bezig…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>De verwerking kan *heel* lang duren…

Ze loopt op de achtergrond,
u kunt dus gewoon doorwerken op uw computer
(u hoeft niet te blijven kijken).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Bezig… %1/%2 mappen</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Opzoektabel wordt toegepast… %1/%2 mappen</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>niet gevonden</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Handleiding</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Over Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>De handleiding is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Hulpprogramma&apos;s, afbeeldingen en standaardconfiguratie:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>handleiding</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>een map kiezen in plaats van neerzetten</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>het logboek van de laatste verwerking tonen</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>afsluiten</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt en een onderstreepte letter: naar dat veld gaan of dat vakje omzetten</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>In het logboek, %1: zoeken, %2: sluiten</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Wat er in de bestanden wordt gewijzigd</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Een tabel is een bestand met de naam AnonymizationLUT_NAME.txt in
%1
of
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Nieuwe waarden voor één attribuut</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Bezig. Iets anders neerzetten loopt hiernaast.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Geen waarde gevonden, geen bestand gewijzigd</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 waarde gevonden, geen bestand gewijzigd</numerusform>
            <numerusform>%1 waarden gevonden, geen bestand gewijzigd</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Geen bestand gevonden</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Geen bestand gewijzigd</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 bestand gewijzigd</numerusform>
            <numerusform>%1 bestanden gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 ongewijzigd</numerusform>
            <numerusform>%1 ongewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 overgeslagen</numerusform>
            <numerusform>%1 overgeslagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>in %1 map</numerusform>
            <numerusform>in %1 mappen</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>Patiënt-ID; leeg wist deze</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Te lang samen met de wortel</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Alleen cijfers zijn mogelijk</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Let op</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fouten</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Geweigerd</translation>
    </message>
</context>
</TS>
