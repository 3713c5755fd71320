<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>Nenhum caminho encontrado para o diretório no domínio.</translation>
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
        <translation>O que as ferramentas relataram e o que se deve saber sobre este processamento</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>Procurar no registro</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Copiar tudo</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>&amp;Salvar como texto…</translation>
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
        <translation>Escolher o que fazer</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configuração</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>Mostrar &amp;pasta de configuração</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>Abre a pasta em que ficam suas configurações e tabelas</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>&amp;Tabela de correspondência</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>&amp;Sobrescrever os arquivos de origem</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>Não manter cópia de segurança ao lado de cada arquivo alterado</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>Construir ta&amp;bela de correspondência</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>Reunir os valores de um atributo em uma nova tabela em vez de alterar arquivos</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>Gerar novos UIDs de &amp;instância</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>Dar também a cada arquivo um novo SOP Instance UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>Gerar s&amp;omente novos UIDs de instância</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>Alterar somente os SOP Instance UIDs</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>Desligado: cada original permanece como NOME.bak, com o nome do paciente.</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>Descrever o caso</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>I&amp;D do caso</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>Torna-se o ID do paciente e o final do Study Instance UID; somente dígitos</translation>
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
        <translation>Torna-se o nome do paciente</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID do paciente; vazio o apaga</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>Nome do paciente; vazio o apaga</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>Pa&amp;lavras-chave</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>Torna-se o comentário do estudo</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>C&amp;réditos</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>Torna-se o número de acesso</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>Comentário do estudo; vazio o apaga</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>Número de acesso; vazio o apaga</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>Raiz &amp;UID</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>O Study Instance UID começa com ela: 1.2. ou 2.25. e pelo menos 20 dígitos</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>G&amp;erar raiz</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>Criar uma nova raiz sob 2.25</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>Validade da raiz UID</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>Raiz UID ainda não verificada</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>Soltar os dados</translation>
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
        <translation>Site na &amp;web</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>Pergunta antes de abrir o site</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>Área para soltar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>Guia, atalhos, versões</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>&amp;Mostrar registro</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>Mostra o que as ferramentas relataram no último processamento em que houve algo a relatar</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>esta pasta: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>Configuração fornecida</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>Padrão</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Tabela de correspondência construída. O arquivo está na área de trabalho.
Ocorreu %1 erro.
Veja as mensagens do console.</numerusform>
            <numerusform>Tabela de correspondência construída. O arquivo está na área de trabalho.
Ocorreram %1 erros.
Veja as mensagens do console.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>Concluído…
Ocorreu %1 erro.
Veja as mensagens do console.</numerusform>
            <numerusform>Concluído…
Ocorreram %1 erros.
Veja as mensagens do console.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
Tabela de correspondência construída. O arquivo está na área de trabalho.</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>Concluído!
Tabela de correspondência aplicada a %1 arquivo.
Arquivos DICOM ignorados: %3.</numerusform>
            <numerusform>Concluído!
Tabela de correspondência aplicada a %1 arquivos.
Arquivos DICOM ignorados: %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
Concluído!</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
Concluído, com %1 erro.</numerusform>
            <numerusform>
Concluído, com %1 erros.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
Concluído. %1 arquivo com erros.</numerusform>
            <numerusform>
Concluído. %1 arquivos com erros.</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

A tabela de correspondência construída está na área de trabalho.

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

Tabela de correspondência aplicada a %1 arquivo.
Arquivos DICOM ignorados: %3.

</numerusform>
            <numerusform>

Tabela de correspondência aplicada a %1 arquivos.
Arquivos DICOM ignorados: %3.

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>Atenção: foram encontrados arquivos DICOMDIR.
Eles não contêm atributos DICOM a anonimizar, mas ainda contêm dados de pacientes:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>Salvar o registro</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Não foi possível salvar o registro.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>O arquivo de configuração não contém nenhum campo &lt;LUT_XX&gt; que indique o atributo DICOM a partir do qual a tabela de correspondência deve ser construída.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>Será usada a configuração de anonimização padrão “DefaultAnonymizationConfiguration.txt” fornecida com o aplicativo.</translation>
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
O aplicativo procura “AnonymizationConfiguration.txt” em 4 lugares, nesta ordem:

1. no próprio aplicativo
2. na área de trabalho
3. na pasta em que está o aplicativo
4. em ~/.local/share/Dravolin/

Se não estiver em nenhum deles, será usada a configuração padrão, que talvez não seja a que você deseja.


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>Salvar cópia na pasta de configuração e sair</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>Não foi possível abrir nem criar a pasta de configuração</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>Não foi possível abrir nem criar a pasta de configuração:
%1

Em vez disso, uma cópia da configuração padrão será salva na área de trabalho.

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>Salvar na área de trabalho e sair</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>Abrir o site %1 no navegador?</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>Sim, claro</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>O UID pode ser válido</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>A raiz é inválida e será substituída</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>Nenhuma tabela de correspondência</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>Sem tabela de correspondência</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>construir uma tabela de correspondência</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>anonimizar</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>Solte aqui pastas ou arquivos DICOM para construir uma tabela de correspondência</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>Solte aqui pastas ou arquivos DICOM para anonimizar</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>Escolher uma pasta…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>Escolher arquivos…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Escolher uma pasta</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>Escolher arquivos</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>Soltar novamente</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>A tabela de correspondência foi encontrada, mas não pôde ser lida.</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
Tabela de correspondência escolhida: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>O arquivo de configuração não indica nenhum atributo a anonimizar!</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
Caminho: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>Salvar cópia da configuração padrão na área de trabalho e sair</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>Grande número de arquivos avulsos</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>Você soltou um grande número de arquivos: o processamento é mais rápido se soltar a pasta que os contém.

Se essa pasta contiver subpastas que não devem ser anonimizadas, coloque os arquivos temporariamente em uma nova pasta e solte-a.

Continuar com os arquivos soltos?
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>Não, vou tentar de novo</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>Sim, prossiga!</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>Seus dados serão anonimizados</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>Os dados de origem serão sobrescritos. Continuar?</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>Não, cancelar</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK, sobrescrever os dados de origem</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>O Study Instance UID seria inválido</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>O ID do caso e a raiz de UID formariam um Study Instance UID inválido.
Isso não é permitido.

Só são permitidos dígitos e “.”, com comprimento total máximo de 64 caracteres.
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>Os descritores de arquivo se esgotaram!</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>Processe os dados em lotes um pouco menores.

Mesmo assim, isso não deveria ter acontecido. Se acontecer de novo, avise-nos.</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>O arquivo de configuração não indica nenhum atributo para a tabela de correspondência escolhida!</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
Tabela de correspondência escolhida: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

É preciso indicar o valor &lt;missing&gt; para o campo &lt;old_value&gt;.

(Veja o arquivo de exemplo fornecido com o aplicativo)</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
Construindo a tabela de correspondência do atributo (%1)…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
Processando…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>O processamento pode demorar *muito*…

Ele é executado em segundo plano,
portanto você pode continuar a usar o computador
(sem ficar olhando).</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
Processando… %1/%2 pastas</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
Aplicando a tabela de correspondência… %1/%2 pastas</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>não encontrado</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>Guia do usuário</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Sobre o Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>O guia do usuário não está instalado.</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>Ferramentas, imagens e configuração padrão:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>guia do usuário</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>escolher uma pasta em vez de soltá-la</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>mostrar o registro do último processamento</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>sair</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt e uma letra sublinhada: ir para o campo ou alternar a caixa</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>No registro, %1: procurar, %2: fechar</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>O que é alterado nos arquivos</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>Uma tabela é um arquivo chamado AnonymizationLUT_NAME.txt em
%1
ou
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>Novos valores para um atributo</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>Processando. O que for solto agora será processado em paralelo.</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>Nenhum valor encontrado, nenhum arquivo alterado</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>%1 valor encontrado, nenhum arquivo alterado</numerusform>
            <numerusform>%1 valores encontrados, nenhum arquivo alterado</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>Nenhum arquivo encontrado</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>Nenhum arquivo alterado</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>%1 arquivo alterado</numerusform>
            <numerusform>%1 arquivos alterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 inalterado</numerusform>
            <numerusform>%1 inalterados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 deixado de fora</numerusform>
            <numerusform>%1 deixados de fora</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>em %1 pasta</numerusform>
            <numerusform>em %1 pastas</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>ID do paciente; vazio o apaga</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>Longo demais junto com a raiz</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>Só dígitos são aceitos</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Atenção</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erros</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Recusado</translation>
    </message>
</context>
</TS>
