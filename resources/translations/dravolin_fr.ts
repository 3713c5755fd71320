<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Aucun chemin trouvé pour le répertoire dans ce domaine.</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin – Journal</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>Ce que les outils ont signalé et ce qu&apos;il faut savoir de ce traitement</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Rechercher dans le journal</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Tout &amp;copier</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>Enregi&amp;strer comme texte…</translation>
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
        <translation>Choisir le traitement</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>A&amp;fficher le dossier de configuration</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Ouvre le dossier où se trouvent vos configurations et vos tables</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>Table de c&amp;orrespondance</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>Éc&amp;raser les fichiers sources</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Ne pas conserver de copie à côté de chaque fichier modifié</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Construire une t&amp;able de correspondance</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Réunir les valeurs d&apos;un attribut dans une nouvelle table au lieu de modifier des fichiers</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Générer de nouveaux UID d&apos;&amp;instance</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Donner aussi à chaque fichier un nouveau SOP Instance UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>&amp;Seulement générer de nouveaux UID d&apos;instance</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Ne modifier que les SOP Instance UID</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Désactivé : chaque original reste sous NOM.bak, avec le nom du patient.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Décrire le cas</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>I&amp;D du cas</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Devient l&apos;ID du patient et la fin du Study Instance UID ; chiffres uniquement</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>Dia&amp;gnostic</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Devient le nom du patient</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID du patient ; vide l&apos;efface</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Nom du patient ; vide l&apos;efface</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>&amp;Mots-clés</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Devient le commentaire de l&apos;examen</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>Crédi&amp;ts</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Devient le numéro d&apos;accession</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Commentaire de l&apos;examen ; vide l&apos;efface</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Numéro d&apos;accession ; vide l&apos;efface</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>Racine &amp;UID</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>Le Study Instance UID commence par elle : 1.2. ou 2.25. et au moins 20 chiffres</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>Générer une raci&amp;ne</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Créer une nouvelle racine sous 2.25</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Validité de la racine UID</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>Racine UID pas encore vérifiée</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Déposer les données</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>Site &amp;web</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Demande confirmation avant d&apos;ouvrir le site web</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Zone de dépôt</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Guide, raccourcis, versions</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Affiche ce que les outils ont signalé lors du dernier traitement qui avait quelque chose à signaler</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>ce dossier : %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Configuration fournie</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Configuration par défaut</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Table de correspondance construite. Fichier placé sur le bureau.
%1 erreur rencontrée.
Voir les messages de la console.</numerusform>
            <numerusform>Table de correspondance construite. Fichier placé sur le bureau.
%1 erreurs rencontrées.
Voir les messages de la console.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Terminé…
%1 erreur rencontrée.
Voir les messages de la console.</numerusform>
            <numerusform>Terminé…
%1 erreurs rencontrées.
Voir les messages de la console.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Table de correspondance construite. Fichier placé sur le bureau.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Terminé !
Table de correspondance appliquée à %1 fichier.
Fichiers DICOM ignorés : %3.</numerusform>
            <numerusform>Terminé !
Table de correspondance appliquée à %1 fichiers.
Fichiers DICOM ignorés : %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Terminé !</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Terminé, avec %1 erreur.</numerusform>
            <numerusform>
Terminé, avec %1 erreurs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Terminé. %1 fichier avec erreurs.</numerusform>
            <numerusform>
Terminé. %1 fichiers avec erreurs.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

La table de correspondance construite a été placée sur le bureau.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Table de correspondance appliquée à %1 fichier.
Fichiers DICOM ignorés : %3.

</numerusform>
            <numerusform>

Table de correspondance appliquée à %1 fichiers.
Fichiers DICOM ignorés : %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Attention : des fichiers DICOMDIR ont été trouvés.
Ils ne contiennent pas d&apos;attributs DICOM à anonymiser, mais bien des données de patients :
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Le journal n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Votre fichier de configuration ne contient aucun champ &lt;LUT_XX&gt; indiquant l&apos;attribut DICOM à partir duquel construire la table de correspondance.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>La configuration d&apos;anonymisation par défaut « DefaultAnonymizationConfiguration.txt » fournie avec l&apos;application est utilisée.</translation>
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
L&apos;application cherche « AnonymizationConfiguration.txt » à 4 emplacements, dans cet ordre :

1. dans l&apos;application elle-même
2. sur le bureau
3. dans le dossier où se trouve l&apos;application
4. dans ~/.local/share/Dravolin/

S&apos;il n&apos;est à aucun de ces emplacements, la configuration par défaut est utilisée, qui n&apos;est peut-être pas celle que vous souhaitez.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Copier dans le dossier de configuration &amp; quitter</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>Impossible d&apos;ouvrir ou de créer le dossier de configuration</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>Impossible d&apos;ouvrir ou de créer le dossier de configuration :
%1

Une copie de la configuration par défaut est enregistrée à la place sur le bureau.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Enregistrer sur le bureau &amp; quitter</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>Ouvrir le site web %1 dans votre navigateur ?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Oui, bien sûr</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>L&apos;UID semble valide</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>Racine non valide, elle sera remplacée</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Aucune table de correspondance trouvée</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Sans table de correspondance</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>construire une table de correspondance</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonymiser</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Déposez ici des dossiers ou des fichiers DICOM pour construire une table de correspondance</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Déposez ici des dossiers ou des fichiers DICOM pour les anonymiser</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Choisir des fichiers…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Choisir des fichiers</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Déposer à nouveau</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>La table de correspondance a été trouvée, mais n&apos;a pas pu être lue.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Table de correspondance choisie : %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Votre fichier de configuration n&apos;indique aucun attribut à anonymiser !</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Chemin : %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Copier la configuration par défaut sur le bureau &amp; quitter</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Grand nombre de fichiers déposés</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>Vous avez déposé un grand nombre de fichiers : le traitement est plus rapide si vous déposez le dossier qui les contient.

Si ce dossier contient des sous-dossiers à ne pas anonymiser, placez provisoirement les fichiers dans un nouveau dossier et déposez celui-ci.

Continuer avec les fichiers déposés ?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>Non, je recommence</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Oui, continuer !</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Vos données vont être anonymisées</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Vos données sources seront écrasées. Continuer ?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>Non, annuler</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, écraser les données sources</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>Le Study Instance UID ne serait pas valide</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>L&apos;identifiant du cas et la racine UID donneraient ensemble un Study Instance UID non valide.
Ce n&apos;est pas autorisé.

Seuls les chiffres et « . » sont autorisés, pour une longueur totale de 64 caractères au plus.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Plus aucun descripteur de fichier disponible !</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Veuillez traiter vos données par lots un peu plus petits.

Cela n&apos;aurait cependant pas dû se produire. Si cela se reproduit, merci de nous le signaler.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Votre fichier de configuration n&apos;indique aucun attribut correspondant à la table de correspondance choisie !</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Table de correspondance choisie : %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Il faut indiquer la valeur &lt;missing&gt; pour le champ &lt;old_value&gt;.

(Voir le fichier d&apos;exemple fourni avec l&apos;application)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Construction de la table de correspondance pour l&apos;attribut (%1)…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Traitement en cours…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>Le traitement peut prendre *très* longtemps…

Il s&apos;exécute en arrière-plan :
vous pouvez continuer à utiliser votre ordinateur
(inutile de rester devant).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Traitement en cours… %1/%2 dossiers</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Application de la table de correspondance… %1/%2 dossiers</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>À propos de Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>Le guide de l&apos;utilisateur n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Outils, images et configuration par défaut :</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>guide de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>choisir un dossier au lieu de le déposer</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>afficher le journal du dernier traitement</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>quitter</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt et une lettre soulignée : aller à ce champ ou changer cette case</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>Dans le journal, %1 : rechercher, %2 : fermer</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Ce qui est modifié dans les fichiers</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Une table est un fichier nommé AnonymizationLUT_NAME.txt dans
%1
ou
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Nouvelles valeurs d&apos;un attribut</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Traitement en cours. Un autre dépôt serait traité en parallèle.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Aucune valeur trouvée, aucun fichier modifié</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 valeur trouvée, aucun fichier modifié</numerusform>
            <numerusform>%1 valeurs trouvées, aucun fichier modifié</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Aucun fichier trouvé</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Aucun fichier modifié</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 fichier modifié</numerusform>
            <numerusform>%1 fichiers modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 inchangé</numerusform>
            <numerusform>%1 inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 laissé de côté</numerusform>
            <numerusform>%1 laissés de côté</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>dans %1 dossier</numerusform>
            <numerusform>dans %1 dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID du patient ; vide l&apos;efface</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Trop long avec la racine</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Chiffres uniquement</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
</context>
</TS>
