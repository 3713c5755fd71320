<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>No se encontró ninguna ruta para el directorio en el dominio.</translation>
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
        <translation>Lo que comunicaron las herramientas y lo que hay que saber de este proceso</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Buscar en el registro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Copiar todo</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>&amp;Guardar como texto…</translation>
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
        <translation>Elegir qué hacer</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configuración</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>Mostrar car&amp;peta de configuración</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Abre la carpeta en la que se guardan sus configuraciones y tablas</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Tabla de correspondencias</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Sobrescribir los archivos de origen</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>No conservar copia de seguridad junto a cada archivo modificado</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Construir ta&amp;bla de correspondencias</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Reunir los valores de un atributo en una tabla nueva en lugar de modificar archivos</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Generar nuevos UID de &amp;instancia</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Dar además a cada archivo un nuevo SOP Instance UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>S&amp;olo generar nuevos UID de instancia</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>No modificar nada más que los SOP Instance UID</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Desactivado: cada original queda como NOMBRE.bak, con el nombre del paciente.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Describir el caso</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>I&amp;D del caso</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Será el ID del paciente y el final del Study Instance UID; solo dígitos</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Dígitos</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>Dia&amp;gnóstico</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>Será el nombre del paciente</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID del paciente; vacío lo borra</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Nombre del paciente; vacío lo borra</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>Pa&amp;labras clave</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Serán los comentarios del estudio</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>C&amp;réditos</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Será el número de acceso</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Comentarios del estudio; vacío los borra</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Número de acceso; vacío lo borra</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>Raíz &amp;UID</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>El Study Instance UID empieza por ella: 1.2. o 2.25. y al menos 20 dígitos</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>G&amp;enerar raíz</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Crear una raíz nueva bajo 2.25</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Validez de la raíz UID</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>Raíz UID aún sin comprobar</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Soltar los datos</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>Sitio &amp;web</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Pregunta antes de abrir el sitio web</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Zona para soltar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Guía, atajos, versiones</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>&amp;Mostrar registro</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Muestra lo que comunicaron las herramientas en el último proceso en que hubo algo que comunicar</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>esta carpeta: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Configuración incluida</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Predeterminada</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Tabla de correspondencias construida. El archivo está en el escritorio.
Se produjo %1 error.
Véanse los mensajes de la consola.</numerusform>
            <numerusform>Tabla de correspondencias construida. El archivo está en el escritorio.
Se produjeron %1 errores.
Véanse los mensajes de la consola.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Terminado…
Se produjo %1 error.
Véanse los mensajes de la consola.</numerusform>
            <numerusform>Terminado…
Se produjeron %1 errores.
Véanse los mensajes de la consola.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Tabla de correspondencias construida. El archivo está en el escritorio.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>¡Terminado!
Tabla de correspondencias aplicada a %1 archivo.
Archivos DICOM omitidos: %3.</numerusform>
            <numerusform>¡Terminado!
Tabla de correspondencias aplicada a %1 archivos.
Archivos DICOM omitidos: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
¡Terminado!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Terminado, con %1 error.</numerusform>
            <numerusform>
Terminado, con %1 errores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Terminado. %1 archivo con errores.</numerusform>
            <numerusform>
Terminado. %1 archivos con errores.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

La tabla de correspondencias construida está en el escritorio.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Tabla de correspondencias aplicada a %1 archivo.
Archivos DICOM omitidos: %3.

</numerusform>
            <numerusform>

Tabla de correspondencias aplicada a %1 archivos.
Archivos DICOM omitidos: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Atención: se encontraron archivos DICOMDIR.
No contienen atributos DICOM que anonimizar, pero sí datos de pacientes:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Guardar el registro</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>No se pudo guardar el registro.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>Su archivo de configuración no contiene ningún campo &lt;LUT_XX&gt; que indique el atributo DICOM con el que se debe construir la tabla de correspondencias.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>Se usará la configuración de anonimización predeterminada «DefaultAnonymizationConfiguration.txt» incluida con la aplicación.</translation>
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
La aplicación busca «AnonymizationConfiguration.txt» en 4 lugares, en este orden:

1. en la propia aplicación
2. en el escritorio
3. en la carpeta donde está la aplicación
4. en ~/.local/share/Dravolin/

Si no está en ninguno de ellos, se usa la configuración predeterminada, que quizá no sea la que usted desea.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Guardar copia en la carpeta de configuración y salir</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>No se pudo abrir ni crear la carpeta de configuración</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>No se pudo abrir ni crear la carpeta de configuración:
%1

En su lugar se guarda una copia de la configuración predeterminada en el escritorio.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Guardar en el escritorio y salir</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>¿Abrir el sitio web %1 en el navegador?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Sí, claro</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>No</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>El UID puede ser válido</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>La raíz no es válida y se sustituirá</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>No hay tablas de correspondencias</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Sin tabla de correspondencias</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>construir una tabla de correspondencias</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonimizar</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Suelte aquí carpetas o archivos DICOM para construir una tabla de correspondencias</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Suelte aquí carpetas o archivos DICOM para anonimizarlos</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Elegir una carpeta…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Elegir archivos…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Elegir archivos</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Soltar de nuevo</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>Se encontró la tabla de correspondencias, pero no se pudo interpretar.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Tabla de correspondencias elegida: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>Su archivo de configuración no indica ningún atributo que anonimizar.</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Ruta: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Guardar copia de la configuración predeterminada en el escritorio y salir</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Gran número de archivos sueltos</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>Ha soltado un gran número de archivos: el proceso es más rápido si suelta la carpeta que los contiene.

Si esa carpeta contiene subcarpetas que no se deben anonimizar, coloque los archivos provisionalmente en una carpeta nueva y suelte esta.

¿Continuar con los archivos soltados?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>No, lo intentaré de nuevo</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Sí, adelante</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Se van a anonimizar sus datos</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Se sobrescribirán los datos de origen. ¿Continuar?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>No, cancelar</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>Sí, sobrescribir los datos de origen</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>El Study Instance UID no sería válido</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>El ID del caso y la raíz de UID darían juntos un Study Instance UID no válido.
Eso no está permitido.

Solo se permiten dígitos y «.», con una longitud total máxima de 64 caracteres.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>¡Se agotaron los descriptores de archivo!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Procese sus datos en lotes algo más pequeños.

Aun así, esto no debería haber ocurrido. Si vuelve a suceder, comuníquenoslo.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>Su archivo de configuración no indica ningún atributo para la tabla de correspondencias elegida.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Tabla de correspondencias elegida: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

Debe indicar el valor &lt;missing&gt; para el campo &lt;old_value&gt;.

(Véase el archivo de ejemplo incluido con la aplicación)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Construyendo la tabla de correspondencias del atributo (%1)…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Procesando…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>El proceso puede tardar *mucho*…

Se ejecuta en segundo plano,
por lo que puede seguir usando el ordenador
(sin quedarse mirando).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Procesando… %1/%2 carpetas</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Aplicando la tabla de correspondencias… %1/%2 carpetas</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Acerca de Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>La guía del usuario no está instalada.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Herramientas, imágenes y configuración predeterminada:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>guía del usuario</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>elegir una carpeta en vez de soltarla</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>mostrar el registro del último proceso</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>salir</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt y una letra subrayada: ir a ese campo o cambiar esa casilla</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>En el registro, %1: buscar, %2: cerrar</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>Lo que se modifica en los archivos</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Una tabla es un archivo llamado AnonymizationLUT_NAME.txt en
%1
o
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Valores nuevos para un atributo</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Procesando. Lo que se suelte ahora se procesará en paralelo.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Ningún valor encontrado, ningún archivo modificado</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 valor encontrado, ningún archivo modificado</numerusform>
            <numerusform>%1 valores encontrados, ningún archivo modificado</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Ningún archivo encontrado</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Ningún archivo modificado</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 archivo modificado</numerusform>
            <numerusform>%1 archivos modificados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 sin cambios</numerusform>
            <numerusform>%1 sin cambios</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 omitido</numerusform>
            <numerusform>%1 omitidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>en %1 carpeta</numerusform>
            <numerusform>en %1 carpetas</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID del paciente; vacío lo borra</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Demasiado largo junto con la raíz</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Solo se admiten dígitos</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atención</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
</context>
</TS>
