<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>このドメインのディレクトリのパスが見つかりません。</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin ログ</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>ツールからの報告と、この処理についての注意事項</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>ログ内を検索</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>すべてコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>テキストとして保存(&amp;S)…</translation>
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
        <translation>処理の選択</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>設定(&amp;C)</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>設定フォルダを表示(&amp;F)</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>設定と対応表を保存しているフォルダを開きます</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>対応表(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>元のファイルを上書き(&amp;O)</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>変更したファイルの横にバックアップを残しません</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>対応表を作成(&amp;T)</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>ファイルを変更せず、1つの属性の値を新しい対応表に集めます</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>新しいインスタンスUIDを生成(&amp;I)</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>各ファイルに新しいSOPインスタンスUIDも付けます</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>新しいインスタンスUIDのみ生成(&amp;N)</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>SOPインスタンスUID以外は変更しません</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>オフ: 元のファイルは「名前.bak」として、患者名を含んだまま残ります。</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>症例の記述</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>症例ID(&amp;D)</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>患者IDと、検査インスタンスUIDの末尾になります。数字のみ</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>診断(&amp;G)</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>患者名になります</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>患者ID。空欄なら消去</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>患者名。空欄なら消去</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>キーワード(&amp;K)</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>検査コメントになります</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>クレジット(&amp;R)</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>受付番号になります</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>検査コメント。空欄なら消去</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>受付番号。空欄なら消去</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>UIDルート(&amp;U)</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>検査インスタンスUIDの先頭になります: 1.2. または 2.25. に20桁以上の数字</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>ルートを生成(&amp;E)</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>2.25の下に新しいルートを作ります</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>UIDルートの有効性</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>UIDルートは未確認です</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>データのドロップ</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>ウェブサイト(&amp;W)</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>ウェブサイトを開く前に確認します</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>ドロップ領域</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>ガイド、ショートカット、バージョン</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>ログを表示(&amp;S)</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>報告のあった直近の処理について、ツールからの報告を表示します</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>このフォルダ: %p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>付属の設定</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>付属の既定</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>対応表の作成が完了しました。ファイルはデスクトップにあります。
エラー: %1 件
コンソールのメッセージを参照してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>完了しました…
エラー: %1 件
コンソールのメッセージを参照してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
対応表の作成が完了しました。ファイルはデスクトップにあります。</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>完了しました
対応表を %1 個のファイルに適用しました。
スキップしたDICOMファイル: %3 個</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
完了しました</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
完了しました。エラー: %1 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
完了しました。エラーのあるファイル: %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

作成した対応表のファイルはデスクトップにあります。

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

対応表を %1 個のファイルに適用しました。
スキップしたDICOMファイル: %3 個

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>注意: DICOMDIRファイルが見つかりました。
匿名化の対象となるDICOM属性はありませんが、患者の個人情報が含まれています:
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>ログを保存できませんでした。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>設定ファイルに、対応表の作成に使うDICOM属性を示す &lt;LUT_XX&gt; フィールドがありません。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>アプリケーションに付属の既定の匿名化設定「DefaultAnonymizationConfiguration.txt」を使用します。</translation>
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
「AnonymizationConfiguration.txt」を次の順に4か所で探します。

1. アプリケーション自体の中
2. デスクトップ
3. アプリケーションのあるフォルダ
4. ~/.local/share/Dravolin/

どこにも見つからない場合は既定の設定を使います。意図した設定ではないかもしれません。


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>設定フォルダにコピーを保存して終了</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>設定フォルダを開くことも作成することもできません</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>次の設定フォルダを開くことも作成することもできませんでした:
%1

代わりに既定の設定のコピーをデスクトップに保存します。

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>デスクトップに保存して終了</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>ウェブサイト %1 をブラウザで開きますか？</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>UIDは有効と思われます</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>ルートが無効です。置き換えられます</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>対応表がありません</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>対応表を使用しない</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>対応表を作成</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>匿名化</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>対応表を作成するには、フォルダまたはDICOMファイルをここにドロップしてください</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>匿名化するには、フォルダまたはDICOMファイルをここにドロップしてください</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>フォルダを選択…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>ファイルを選択…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダを選択</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>もう一度ドロップ</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>対応表のファイルは見つかりましたが、読み取れませんでした。</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
選択した対応表: %1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>設定ファイルに、匿名化する属性がありません。</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
パス: %1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>既定の設定のコピーをデスクトップに保存して終了</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>多数のファイルが個別にドロップされました</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>多数のファイルが個別にドロップされました。ファイルの入ったフォルダをドロップすると速く処理できます。

そのフォルダに匿名化してはならないサブフォルダがある場合は、ファイルを一時的に新しいフォルダに移し、そのフォルダをドロップしてください。

ドロップしたファイルで続けますか？
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>いいえ、やり直します</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>はい、続けます</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>データを匿名化しようとしています</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>元のデータは上書きされます。続けますか？</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>いいえ、キャンセル</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>OK、元のデータを上書き</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>検査インスタンスUIDが無効になります</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>症例IDとUIDルートの組み合わせでは、検査インスタンスUIDが無効になります。
これは許可されていません。

使用できるのは数字と「.」だけで、全体の長さは最大64文字です。
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>ファイルハンドルが足りません</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>データをもう少し小さく分けて処理してください。

ただし、本来は起こらないはずの問題です。再び起きた場合はお知らせください。</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>設定ファイルに、選択した対応表に対応する属性がありません。</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
選択した対応表: %1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

&lt;old_value&gt; フィールドに &lt;missing&gt; の値を指定してください。

（アプリケーションに付属の例を参照）</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
属性 (%1) の対応表を作成しています…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
処理中…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>処理には*非常に*時間がかかることがあります…

処理はバックグラウンドで行われるので、
コンピュータを使い続けることができます
（見ている必要はありません）。</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
処理中… フォルダ %1/%2</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
対応表を適用しています… フォルダ %1/%2</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>ウェブサイト</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>Dravolin について</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>ユーザーガイドがインストールされていません。</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>ツール、画像、既定の設定:</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>ユーザーガイド</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>ドロップせずにフォルダを選択</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>直近の処理のログを表示</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt と下線の文字: その項目へ移動、またはチェックを切り替え</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>ログでは %1: 検索、%2: 閉じる</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>ファイル内で変更する内容</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>対応表は、次のいずれかにある AnonymizationLUT_NAME.txt という名前のファイルです:
%1
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>1つの属性の新しい値</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>処理中です。もう一度ドロップすると並行して処理されます。</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>値は見つからず、変更したファイルはありません</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>値が %1 個見つかり、変更したファイルはありません</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>変更したファイルはありません</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>変更: %1 ファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>変更なし: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>対象外: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>フォルダ: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>患者ID。空欄なら消去</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>ルートと合わせると長すぎます</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>数字だけが使えます</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>拒否</translation>
    </message>
</context>
</TS>
