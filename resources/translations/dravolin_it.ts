<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Nessun percorso trovato per la directory nel dominio.</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin – Registro</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>Che cosa hanno segnalato gli strumenti e che cosa occorre sapere di questa elaborazione</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Cerca nel registro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Copia tutto</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>&amp;Salva come testo…</translation>
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
        <translation>Scegliere che cosa fare</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configurazione</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>&amp;Mostra cartella di configurazione</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Apre la cartella in cui si trovano le configurazioni e le tabelle</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Tabella di corrispondenza</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Sovrascrivi i file di origine</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Non conservare una copia accanto a ogni file modificato</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Costruisci ta&amp;bella di corrispondenza</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Raccogliere i valori di un attributo in una nuova tabella invece di modificare i file</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Genera nuovi UID di &amp;istanza</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Assegnare inoltre a ogni file un nuovo SOP Instance UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>Genera s&amp;olo nuovi UID di istanza</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Modificare soltanto i SOP Instance UID</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Disattivato: ogni originale resta come NOME.bak, con il nome del paziente.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Descrivere il caso</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>I&amp;D del caso</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Diventa l&apos;ID paziente e la fine dello Study Instance UID; solo cifre</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Cifre</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>Dia&amp;gnosi</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Diventa il nome del paziente</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID paziente; vuoto lo cancella</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Nome del paziente; vuoto lo cancella</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>Parole c&amp;hiave</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Diventa il commento dello studio</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>C&amp;rediti</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Diventa l&apos;Accession Number</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Commento dello studio; vuoto lo cancella</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Accession Number; vuoto lo cancella</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>Radice &amp;UID</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>Lo Study Instance UID inizia con essa: 1.2. o 2.25. e almeno 20 cifre</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>G&amp;enera radice</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Creare una nuova radice sotto 2.25</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Validità della radice UID</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>Radice UID non ancora verificata</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Trascinare i dati</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>Sito &amp;web</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Chiede conferma prima di aprire il sito web</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Area di rilascio</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Guida, scorciatoie, versioni</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>Mostr&amp;a registro</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Mostra che cosa hanno segnalato gli strumenti nell&apos;ultima elaborazione che aveva qualcosa da segnalare</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>questa cartella: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Configurazione fornita</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Predefinita</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Tabella di corrispondenza costruita. Il file è sulla scrivania.
Si è verificato %1 errore.
Vedere i messaggi della console.</numerusform>
            <numerusform>Tabella di corrispondenza costruita. Il file è sulla scrivania.
Si sono verificati %1 errori.
Vedere i messaggi della console.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Terminato…
Si è verificato %1 errore.
Vedere i messaggi della console.</numerusform>
            <numerusform>Terminato…
Si sono verificati %1 errori.
Vedere i messaggi della console.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Tabella di corrispondenza costruita. Il file è sulla scrivania.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Terminato!
Tabella di corrispondenza applicata a %1 file.
File DICOM saltati: %3.</numerusform>
            <numerusform>Terminato!
Tabella di corrispondenza applicata a %1 file.
File DICOM saltati: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Terminato!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Terminato, con %1 errore.</numerusform>
            <numerusform>
Terminato, con %1 errori.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Terminato. %1 file con errori.</numerusform>
            <numerusform>
Terminato. %1 file con errori.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

La tabella di corrispondenza costruita è sulla scrivania.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Tabella di corrispondenza applicata a %1 file.
File DICOM saltati: %3.

</numerusform>
            <numerusform>

Tabella di corrispondenza applicata a %1 file.
File DICOM saltati: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Attenzione: sono stati trovati file DICOMDIR.
Non contengono attributi DICOM da anonimizzare, ma contengono comunque dati dei pazienti:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Salva il registro</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Impossibile salvare il registro.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Il file di configurazione non contiene alcun campo &lt;LUT_XX&gt; che indichi l&apos;attributo DICOM da cui costruire la tabella di corrispondenza.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>Viene usata la configurazione di anonimizzazione predefinita «DefaultAnonymizationConfiguration.txt» fornita con l&apos;applicazione.</translation>
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
L&apos;applicazione cerca «AnonymizationConfiguration.txt» in 4 posizioni, in quest&apos;ordine:

1. nell&apos;applicazione stessa
2. sulla scrivania
3. nella cartella in cui si trova l&apos;applicazione
4. in ~/.local/share/Dravolin/

Se non si trova in nessuna di esse, viene usata la configurazione predefinita, che potrebbe non essere quella desiderata.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Salva una copia nella cartella di configurazione ed esci</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>Impossibile aprire o creare la cartella di configurazione</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>Impossibile aprire o creare la cartella di configurazione:
%1

Una copia della configurazione predefinita viene invece salvata sulla scrivania.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Salva sulla scrivania ed esci</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>Aprire il sito web %1 nel browser?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Sì, certo</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>No</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>L&apos;UID può essere valido</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>La radice non è valida e sarà sostituita</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Nessuna tabella di corrispondenza</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Senza tabella di corrispondenza</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>costruire una tabella di corrispondenza</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonimizzare</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Trascinare qui cartelle o file DICOM per costruire una tabella di corrispondenza</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Trascinare qui cartelle o file DICOM per anonimizzarli</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Scegli una cartella…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Scegli i file…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Scegli i file</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Trascina di nuovo</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>La tabella di corrispondenza è stata trovata, ma non è stato possibile leggerla.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Tabella di corrispondenza scelta: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Il file di configurazione non indica alcun attributo da anonimizzare!</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Percorso: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Salva una copia della configurazione predefinita sulla scrivania ed esci</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Trascinati molti file singoli</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>È stato trascinato un gran numero di file singoli: l&apos;elaborazione è più veloce se si trascina la cartella che li contiene.

Se questa cartella contiene sottocartelle da non anonimizzare, conviene mettere temporaneamente i file in una nuova cartella e trascinare quella.

Continuare con i file trascinati?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>No, riprovo</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Sì, procedi!</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>I dati stanno per essere anonimizzati</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>I dati di origine saranno sovrascritti. Continuare?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>No, annulla</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, sovrascrivi i dati di origine</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>Lo Study Instance UID non sarebbe valido</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>L&apos;ID del caso e la radice UID darebbero insieme uno Study Instance UID non valido.
Non è consentito.

Sono ammessi solo cifre e «.», per una lunghezza totale massima di 64 caratteri.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Descrittori di file esauriti!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Elaborare i dati in gruppi un po&apos; più piccoli.

Tuttavia, questo non sarebbe dovuto accadere. Se dovesse ripetersi, vi preghiamo di segnalarcelo.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Il file di configurazione non indica alcun attributo per la tabella di corrispondenza scelta!</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Tabella di corrispondenza scelta: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Occorre indicare il valore &lt;missing&gt; per il campo &lt;old_value&gt;.

(Vedere il file di esempio fornito con l&apos;applicazione)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Costruzione della tabella di corrispondenza per l&apos;attributo (%1)…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Elaborazione in corso…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>L&apos;elaborazione può richiedere *molto* tempo…

Viene eseguita in background,
quindi si può continuare a usare il computer
(senza restare a guardare).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Elaborazione in corso… %1/%2 cartelle</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Applicazione della tabella di corrispondenza… %1/%2 cartelle</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>non trovato</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guida per l&apos;utente</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Informazioni su Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>La guida per l&apos;utente non è installata.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Strumenti, immagini e configurazione predefinita:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>guida per l&apos;utente</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>scegliere una cartella invece di trascinarla</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>mostrare il registro dell&apos;ultima elaborazione</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>uscire</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt e una lettera sottolineata: andare al campo o cambiare la casella</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>Nel registro, %1: cercare, %2: chiudere</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Che cosa viene modificato nei file</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Una tabella è un file di nome AnonymizationLUT_NAME.txt in
%1
o
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Nuovi valori per un attributo</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Elaborazione in corso. Un altro rilascio verrebbe elaborato in parallelo.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Nessun valore trovato, nessun file modificato</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 valore trovato, nessun file modificato</numerusform>
            <numerusform>%1 valori trovati, nessun file modificato</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Nessun file trovato</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Nessun file modificato</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 file modificato</numerusform>
            <numerusform>%1 file modificati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 invariato</numerusform>
            <numerusform>%1 invariati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 tralasciato</numerusform>
            <numerusform>%1 tralasciati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>in %1 cartella</numerusform>
            <numerusform>in %1 cartelle</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID paziente; vuoto lo cancella</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Troppo lungo insieme alla radice</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Sono ammesse solo cifre</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attenzione</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rifiutato</translation>
    </message>
</context>
</TS>
