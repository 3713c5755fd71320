<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Nie znaleziono ścieżki katalogu w domenie.</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin – Dziennik</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>Co zgłosiły narzędzia i co trzeba wiedzieć o tym przebiegu</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Szukaj w dzienniku</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Kopiuj wszystko</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>&amp;Zapisz jako tekst…</translation>
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
        <translation>Wybierz, co zrobić</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Konfiguracja</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>Pokaż katalog kon&amp;figuracji</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Otwiera katalog z konfiguracjami i tabelami</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Tabela podstawień</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Nadpisz pliki źródłowe</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Nie zachowuj kopii obok każdego zmienionego pliku</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Z&amp;buduj tabelę podstawień</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Zbierz wartości jednego atrybutu w nowej tabeli zamiast zmieniać pliki</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Generuj nowe UID &amp;instancji</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Nadaj też każdemu plikowi nowy SOP Instance UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>Generuj tylk&amp;o nowe UID instancji</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Zmień wyłącznie SOP Instance UID</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Wyłączone: każdy oryginał pozostaje jako NAZWA.bak, z nazwiskiem pacjenta.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Opisz przypadek</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>I&amp;D przypadku</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Stanie się ID pacjenta i końcem Study Instance UID; tylko cyfry</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Cyfry</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>&amp;Rozpoznanie</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Stanie się nazwiskiem pacjenta</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID pacjenta; puste usuwa</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Nazwisko pacjenta; puste usuwa</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>&amp;Słowa kluczowe</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Staną się komentarzem do badania</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>&amp;Autorzy</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Stanie się numerem Accession Number</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Komentarz do badania; puste usuwa</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Accession Number; puste usuwa</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>Korzeń &amp;UID</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>Od niego zaczyna się Study Instance UID: 1.2. lub 2.25. i co najmniej 20 cyfr</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>Wyg&amp;eneruj korzeń</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Utwórz nowy korzeń pod 2.25</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Poprawność korzenia UID</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>Korzeń UID jeszcze niesprawdzony</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Upuść dane</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Zajęty</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>&amp;Witryna</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Pyta przed otwarciem witryny</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Obszar upuszczania</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Podręcznik, skróty, wersje</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>&amp;Pokaż dziennik</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Pokazuje, co zgłosiły narzędzia w ostatnim przebiegu, w którym było co zgłosić</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>ten katalog: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Konfiguracja dostarczona</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Domyślna</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Zbudowano tabelę podstawień. Plik umieszczono na pulpicie.
Wystąpił %1 błąd.
Zob. komunikaty na konsoli.</numerusform>
            <numerusform>Zbudowano tabelę podstawień. Plik umieszczono na pulpicie.
Wystąpiły %1 błędy.
Zob. komunikaty na konsoli.</numerusform>
            <numerusform>Zbudowano tabelę podstawień. Plik umieszczono na pulpicie.
Wystąpiło %1 błędów.
Zob. komunikaty na konsoli.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Gotowe…
Wystąpił %1 błąd.
Zob. komunikaty na konsoli.</numerusform>
            <numerusform>Gotowe…
Wystąpiły %1 błędy.
Zob. komunikaty na konsoli.</numerusform>
            <numerusform>Gotowe…
Wystąpiło %1 błędów.
Zob. komunikaty na konsoli.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Zbudowano tabelę podstawień. Plik umieszczono na pulpicie.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Gotowe!
Tabelę podstawień zastosowano do %1 pliku.
Pominięte pliki DICOM: %3.</numerusform>
            <numerusform>Gotowe!
Tabelę podstawień zastosowano do %1 plików.
Pominięte pliki DICOM: %3.</numerusform>
            <numerusform>Gotowe!
Tabelę podstawień zastosowano do %1 plików.
Pominięte pliki DICOM: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Gotowe!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Gotowe, %1 błąd.</numerusform>
            <numerusform>
Gotowe, %1 błędy.</numerusform>
            <numerusform>
Gotowe, %1 błędów.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Gotowe. %1 plik z błędami.</numerusform>
            <numerusform>
Gotowe. %1 pliki z błędami.</numerusform>
            <numerusform>
Gotowe. %1 plików z błędami.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

Zbudowaną tabelę podstawień umieszczono na pulpicie.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Tabelę podstawień zastosowano do %1 pliku.
Pominięte pliki DICOM: %3.

</numerusform>
            <numerusform>

Tabelę podstawień zastosowano do %1 plików.
Pominięte pliki DICOM: %3.

</numerusform>
            <numerusform>

Tabelę podstawień zastosowano do %1 plików.
Pominięte pliki DICOM: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Uwaga: znaleziono pliki DICOMDIR.
Nie zawierają one atrybutów DICOM do anonimizacji, ale nadal zawierają dane pacjentów:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nie znaleziono</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Zapisz dziennik</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Nie udało się zapisać dziennika.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Plik konfiguracji nie zawiera pola &lt;LUT_XX&gt;, które wskazuje atrybut DICOM służący do zbudowania tabeli podstawień.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>Używana jest domyślna konfiguracja anonimizacji „DefaultAnonymizationConfiguration.txt” dostarczona z programem.</translation>
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
Program szuka pliku „AnonymizationConfiguration.txt” w 4 miejscach, w tej kolejności:

1. w samym programie
2. na pulpicie
3. w katalogu, w którym znajduje się program
4. w ~/.local/share/Dravolin/

Jeśli nie ma go w żadnym z tych miejsc, używana jest konfiguracja domyślna, która może nie być tą, o którą chodzi.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Zapisz kopię w katalogu konfiguracji i zakończ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>Nie udało się otworzyć ani utworzyć katalogu konfiguracji</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>Nie udało się otworzyć ani utworzyć katalogu konfiguracji:
%1

Kopia konfiguracji domyślnej zostanie zapisana na pulpicie.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Zapisz na pulpicie i zakończ</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>Otworzyć witrynę %1 w przeglądarce?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>UID może być prawidłowy</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>Korzeń jest nieprawidłowy i zostanie zastąpiony</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Nie znaleziono tabel podstawień</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Bez tabeli podstawień</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>budowanie tabeli podstawień</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonimizacja</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Upuść tutaj katalogi lub pliki DICOM, aby zbudować tabelę podstawień</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Upuść tutaj katalogi lub pliki DICOM, aby je zanonimizować</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Wybierz katalog…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Wybierz pliki…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Wybierz katalog</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Wybierz pliki</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Upuść ponownie</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>Tabela podstawień została znaleziona, ale nie udało się jej odczytać.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Wybrana tabela podstawień: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Plik konfiguracji nie zawiera atrybutów do anonimizacji!</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Ścieżka: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Zapisz kopię konfiguracji domyślnej na pulpicie i zakończ</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Upuszczono bardzo wiele pojedynczych plików</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>Upuszczono bardzo wiele pojedynczych plików: przetwarzanie jest szybsze, gdy upuści się katalog, w którym się znajdują.

Jeśli ten katalog zawiera podkatalogi, których nie należy anonimizować, można tymczasowo umieścić pliki w nowym katalogu i upuścić ten katalog.

Kontynuować z upuszczonymi plikami?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>Nie, spróbuję ponownie</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Tak, kontynuuj!</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Dane zostaną zanonimizowane</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Dane źródłowe zostaną nadpisane. Kontynuować?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>Nie, anuluj</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, nadpisz dane źródłowe</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>Study Instance UID byłby nieprawidłowy</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>Identyfikator przypadku i korzeń UID dałyby razem nieprawidłowy Study Instance UID.
Jest to niedozwolone.

Dozwolone są tylko cyfry i „.”, a całkowita długość nie może przekraczać 64 znaków.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Zabrakło uchwytów plików!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Proszę przetwarzać dane w nieco mniejszych porcjach.

Mimo to nie powinno się to było zdarzyć. Jeśli się powtórzy, prosimy o informację.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Plik konfiguracji nie zawiera atrybutu pasującego do wybranej tabeli podstawień!</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Wybrana tabela podstawień: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Należy podać wartość &lt;missing&gt; dla pola &lt;old_value&gt;.

(Zob. przykładowy plik dostarczony z programem)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Budowanie tabeli podstawień dla atrybutu (%1)…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Trwa przetwarzanie…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>Przetwarzanie może trwać *bardzo* długo…

Odbywa się w tle,
można więc dalej korzystać z komputera
(nie trzeba na to patrzeć).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Trwa przetwarzanie… katalogi: %1/%2</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Stosowanie tabeli podstawień… katalogi: %1/%2</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nie znaleziono</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Podręcznik użytkownika</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Witryna</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>O programie Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Podręcznik użytkownika nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Narzędzia, obrazy i konfiguracja domyślna:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>podręcznik użytkownika</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>wybierz katalog zamiast go upuszczać</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>pokaż dziennik ostatniego przebiegu</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>zakończ</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt i podkreślona litera: przejdź do pola lub przełącz pole wyboru</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>W dzienniku: %1: szukaj, %2: zamknij</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Co zostanie zmienione w plikach</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Tabela to plik o nazwie AnonymizationLUT_NAME.txt w
%1
lub
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Nowe wartości jednego atrybutu</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Trwa przetwarzanie. Kolejne upuszczenie będzie działać równolegle.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Nie znaleziono wartości, nie zmieniono plików</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>Znaleziono %1 wartość, nie zmieniono plików</numerusform>
            <numerusform>Znaleziono %1 wartości, nie zmieniono plików</numerusform>
            <numerusform>Znaleziono %1 wartości, nie zmieniono plików</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Nie znaleziono plików</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Nie zmieniono plików</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>Zmieniono %1 plik</numerusform>
            <numerusform>Zmieniono %1 pliki</numerusform>
            <numerusform>Zmieniono %1 plików</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>bez zmian: %1</numerusform>
            <numerusform>bez zmian: %1</numerusform>
            <numerusform>bez zmian: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>pominięto: %1</numerusform>
            <numerusform>pominięto: %1</numerusform>
            <numerusform>pominięto: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>w %1 katalogu</numerusform>
            <numerusform>w %1 katalogach</numerusform>
            <numerusform>w %1 katalogach</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID pacjenta; puste usuwa</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Za długie razem z korzeniem</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Dozwolone są tylko cyfry</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Błędy</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Odrzucono</translation>
    </message>
</context>
</TS>
