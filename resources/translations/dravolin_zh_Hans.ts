<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans" sourcelanguage="en">
<context>
    <name>Errors</name>
    <message>
        <source>No path found for directory in domain.</source>
        <translation>未在域中找到目录的路径。</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Dravolin Log</source>
        <translation>Dravolin 日志</translation>
    </message>
    <message>
        <source>What the tools reported, and what is to be known about this run</source>
        <translation>工具报告的内容以及关于本次运行的须知</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Find in the log</source>
        <translation>在日志中查找</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>全部复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save as text...</source>
        <translation>另存为文本(&amp;S)…</translation>
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
        <translation>选择操作</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>配置(&amp;C)</translation>
    </message>
    <message>
        <source>Show configuration &amp;folder</source>
        <translation>打开配置文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Opens the folder in which your configurations and tables are kept</source>
        <translation>打开存放配置和对照表的文件夹</translation>
    </message>
    <message>
        <source>&amp;Look-up table</source>
        <translation>对照表(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Overwrite source files</source>
        <translation>覆盖源文件(&amp;O)</translation>
    </message>
    <message>
        <source>Keep no backup beside each changed file</source>
        <translation>不在每个更改的文件旁保留备份</translation>
    </message>
    <message>
        <source>Construct look-up &amp;table</source>
        <translation>生成对照表(&amp;T)</translation>
    </message>
    <message>
        <source>Collect the values of one attribute into a new table instead of changing files</source>
        <translation>不更改文件，而是将一个属性的值收集到新的对照表中</translation>
    </message>
    <message>
        <source>Generate new &amp;instance UIDs</source>
        <translation>生成新的实例 UID(&amp;I)</translation>
    </message>
    <message>
        <source>Also give every file a new SOP Instance UID</source>
        <translation>同时为每个文件赋予新的 SOP 实例 UID</translation>
    </message>
    <message>
        <source>O&amp;nly generate new instance UIDs</source>
        <translation>仅生成新的实例 UID(&amp;N)</translation>
    </message>
    <message>
        <source>Change nothing but the SOP Instance UIDs</source>
        <translation>除 SOP 实例 UID 外不更改任何内容</translation>
    </message>
    <message>
        <source>Off: each original stays as NAME.bak, with the patient&apos;s name in it.</source>
        <translation>关闭时：每个原文件保留为“名称.bak”，其中仍有患者姓名。</translation>
    </message>
    <message>
        <source>Describe the case</source>
        <translation>描述病例</translation>
    </message>
    <message>
        <source>Case I&amp;D</source>
        <translation>病例 ID(&amp;D)</translation>
    </message>
    <message>
        <source>Becomes the Patient ID and the end of the Study Instance UID; digits only</source>
        <translation>将成为患者 ID 和检查实例 UID 的末尾；仅限数字</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Dia&amp;gnosis</source>
        <translation>诊断(&amp;G)</translation>
    </message>
    <message>
        <source>Becomes the Patient&apos;s Name</source>
        <translation>将成为患者姓名</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>患者 ID；留空则删除</translation>
    </message>
    <message>
        <source>Patient&apos;s Name; empty erases it</source>
        <translation>患者姓名；留空则删除</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>关键词(&amp;K)</translation>
    </message>
    <message>
        <source>Becomes the Study Comments</source>
        <translation>将成为检查备注</translation>
    </message>
    <message>
        <source>C&amp;redits</source>
        <translation>致谢(&amp;R)</translation>
    </message>
    <message>
        <source>Becomes the Accession Number</source>
        <translation>将成为检查号</translation>
    </message>
    <message>
        <source>Study Comments; empty erases them</source>
        <translation>检查备注；留空则删除</translation>
    </message>
    <message>
        <source>Accession Number; empty erases it</source>
        <translation>检查号；留空则删除</translation>
    </message>
    <message>
        <source>&amp;UID root</source>
        <translation>UID 根(&amp;U)</translation>
    </message>
    <message>
        <source>The Study Instance UID begins with it: 1.2. or 2.25. and at least 20 digits</source>
        <translation>检查实例 UID 以它开头：1.2. 或 2.25. 加至少 20 位数字</translation>
    </message>
    <message>
        <source>Gen&amp;erate root</source>
        <translation>生成根(&amp;E)</translation>
    </message>
    <message>
        <source>Make a new root under 2.25</source>
        <translation>在 2.25 下新建根</translation>
    </message>
    <message>
        <source>UID root validity</source>
        <translation>UID 根的有效性</translation>
    </message>
    <message>
        <source>UID root not checked yet</source>
        <translation>UID 根尚未检查</translation>
    </message>
    <message>
        <source>Drop the data</source>
        <translation>拖放数据</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>&amp;Web site</source>
        <translation>网站(&amp;W)</translation>
    </message>
    <message>
        <source>Asks before it opens the web site</source>
        <translation>打开网站前会先询问</translation>
    </message>
    <message>
        <source>Drop area</source>
        <translation>拖放区域</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Guide, shortcuts, versions</source>
        <translation>指南、快捷键、版本</translation>
    </message>
    <message>
        <source>&amp;Show log</source>
        <translation>显示日志(&amp;S)</translation>
    </message>
    <message>
        <source>Shows what the tools reported in the last run that had something to say</source>
        <translation>显示最近一次有内容可报告的运行中工具报告的内容</translation>
    </message>
    <message>
        <source>this folder: %p%</source>
        <translation>此文件夹：%p%</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>Bundled Configuration</source>
        <translation>自带配置</translation>
    </message>
    <message>
        <source>Bundled Default</source>
        <translation>自带默认配置</translation>
    </message>
    <message numerus="yes">
        <source>Done constructing LUT. File placed on Desktop.
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>对照表已生成，文件位于桌面。
遇到 %1 个错误。
请查看控制台消息。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Done...
Encountered %1 error%2.
See messages logged to console.</source>
        <translation>
            <numerusform>完成…
遇到 %1 个错误。
请查看控制台消息。</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done constructing LUT. File placed on Desktop.</source>
        <translation>
对照表已生成，文件位于桌面。</translation>
    </message>
    <message numerus="yes">
        <source>Done!
LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.</source>
        <translation>
            <numerusform>完成！
对照表已应用于 %1 个文件。
跳过的 DICOM 文件：%3 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>
Done!</source>
        <translation>
完成！</translation>
    </message>
    <message numerus="yes">
        <source>
Done, with %1 error%2.</source>
        <translation>
            <numerusform>
完成，有 %1 个错误。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>
Done. %1 file%2 with errors.</source>
        <translation>
            <numerusform>
完成。%1 个文件有错误。</numerusform>
        </translation>
    </message>
    <message>
        <source>

Constructed LUT file placed on Desktop.

</source>
        <translation>

生成的对照表文件位于桌面。

</translation>
    </message>
    <message numerus="yes">
        <source>

LUT tag propagated to %1 file%2.
Skipped %3 DICOM file%4.

</source>
        <translation>
            <numerusform>

对照表已应用于 %1 个文件。
跳过的 DICOM 文件：%3 个。

</numerusform>
        </translation>
    </message>
    <message>
        <source>Mind you: DICOMDIR files were found.
They do not contain DICOM tags to anonymize but still contain PHI:
</source>
        <translation>注意：发现 DICOMDIR 文件。
其中没有要匿名化的 DICOM 属性，但仍含有患者隐私信息：
</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Save the log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>无法保存日志。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Your configuration file provided no &lt;LUT_XX&gt; field to indicate which DICOM tag should be used for constructing the LUT.</source>
        <translation>您的配置文件中没有 &lt;LUT_XX&gt; 字段，无法确定用哪个 DICOM 属性生成对照表。</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Reverting to default anonymization config from &apos;DefaultAnonymizationConfiguration.txt&apos;from the Application Bundle.</source>
        <translation>将使用应用程序自带的默认匿名化配置“DefaultAnonymizationConfiguration.txt”。</translation>
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
应用程序按以下顺序在 4 个位置查找“AnonymizationConfiguration.txt”：

1. 应用程序自身
2. 桌面
3. 应用程序所在的文件夹
4. ~/.local/share/Dravolin/

如果都未找到，则使用默认配置，它可能不是您想要的。


</translation>
    </message>
    <message>
        <source>Save copy to Configuration folder &amp; Quit</source>
        <translation>保存副本到配置文件夹并退出</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Could not access or create config folder</source>
        <translation>无法访问或创建配置文件夹</translation>
    </message>
    <message>
        <source>Failed to access or create the configuration folder at:
%1

Saving a copy of the default Configuration to the Desktop instead.

</source>
        <translation>无法访问或创建以下配置文件夹：
%1

将改为在桌面上保存默认配置的副本。

</translation>
    </message>
    <message>
        <source>Save to Desktop &amp; Quit</source>
        <translation>保存到桌面并退出</translation>
    </message>
    <message>
        <source>Open the web site %1 in your web browser?</source>
        <translation>要在浏览器中打开网站 %1 吗？</translation>
    </message>
    <message>
        <source>Yes, sure</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No, don&apos;t</source>
        <translation>否</translation>
    </message>
    <message>
        <source>UID may be valid</source>
        <translation>UID 可能有效</translation>
    </message>
    <message>
        <source>Root is invalid, will be replaced</source>
        <translation>根无效，将被替换</translation>
    </message>
    <message>
        <source>No look-up table files found</source>
        <translation>未找到对照表文件</translation>
    </message>
    <message>
        <source>Don&apos;t use a look-up table</source>
        <translation>不使用对照表</translation>
    </message>
    <message>
        <source>construct look-up table</source>
        <translation>生成对照表</translation>
    </message>
    <message>
        <source>anonymize</source>
        <translation>匿名化</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to construct a look-up table</source>
        <translation>将文件夹或 DICOM 文件拖放到此处以生成对照表</translation>
    </message>
    <message>
        <source>Drop folders or DICOM files here to anonymize them</source>
        <translation>将文件夹或 DICOM 文件拖放到此处以匿名化</translation>
    </message>
    <message>
        <source>Choose a folder...</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Choose files...</source>
        <translation>选择文件…</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose files</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Retry Drop</source>
        <translation>重新拖放</translation>
    </message>
    <message>
        <source>LUT file found, but not successfully parsed.</source>
        <translation>找到了对照表文件，但无法解析。</translation>
    </message>
    <message>
        <source>
Selected LUT: %1%2


</source>
        <translation>
所选对照表：%1%2


</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags to anonymize!</source>
        <translation>您的配置文件中没有要匿名化的属性！</translation>
    </message>
    <message>
        <source>
Path: %1


</source>
        <translation>
路径：%1


</translation>
    </message>
    <message>
        <source>Save copy of default config to Desktop &amp; Quit</source>
        <translation>将默认配置的副本保存到桌面并退出</translation>
    </message>
    <message>
        <source>Large number of individual files dropped</source>
        <translation>拖放了大量单个文件</translation>
    </message>
    <message>
        <source>You dropped a large number of individual files: processing is faster if you drop the enclosing folder.

If this enclosing folder contains subfolders that should not be anonymized, consider temporarily placing the individual files in a new folder and drop that.

Continue with dropped files?
</source>
        <translation>您拖放了大量单个文件：拖放它们所在的文件夹会处理得更快。

如果该文件夹包含不应匿名化的子文件夹，请将这些文件暂时放入一个新文件夹，然后拖放该文件夹。

是否继续处理拖放的文件？
</translation>
    </message>
    <message>
        <source>No, I&apos;ll retry</source>
        <translation>否，我重新拖放</translation>
    </message>
    <message>
        <source>Yes, get on with it!</source>
        <translation>是，继续处理！</translation>
    </message>
    <message>
        <source>About to anonymize your data</source>
        <translation>即将匿名化您的数据</translation>
    </message>
    <message>
        <source>Your source data will be overwritten. Continue?</source>
        <translation>源数据将被覆盖。是否继续？</translation>
    </message>
    <message>
        <source>No, Cancel</source>
        <translation>否，取消</translation>
    </message>
    <message>
        <source>Ok, Overwrite source data</source>
        <translation>是，覆盖源数据</translation>
    </message>
    <message>
        <source>Study Instance UID would be invalid</source>
        <translation>检查实例 UID 将无效</translation>
    </message>
    <message>
        <source>The combination of the CaseID and the UID root would result in the creation of an invalid Study Instance UID.
This is now allowed.

Only digits and &apos;.&apos; are allowed, and the total maximum length is 64 characters.
</source>
        <translation>病例 ID 与 UID 根组合后会产生无效的检查实例 UID。
这是不允许的。

只允许使用数字和“.”，总长度最多 64 个字符。
</translation>
    </message>
    <message>
        <source>Ran out of file handles!</source>
        <translation>文件句柄已用尽！</translation>
    </message>
    <message>
        <source>Please try and process your data in slightly smaller batches.

Nevertheless, this should not have happened. If it reoccurs, please let me know.</source>
        <translation>请将数据分成更小的批次处理。

不过，这种情况本不应发生。如果再次出现，请告知我们。</translation>
    </message>
    <message>
        <source>Your configuration file provided no tags matching the selected LUT!</source>
        <translation>您的配置文件中没有与所选对照表对应的属性！</translation>
    </message>
    <message>
        <source>
Selected LUT: %1


</source>
        <translation>
所选对照表：%1


</translation>
    </message>
    <message>
        <source>

You should implement the &lt;missing&gt; value for the &lt;old_value&gt; field.

(See the example file in the Application Bundle)</source>
        <translation>

应为 &lt;old_value&gt; 字段提供 &lt;missing&gt; 值。

（请参阅应用程序自带的示例文件）</translation>
    </message>
    <message>
        <source>
Constructing LUT for tag : (%1)...</source>
        <translation>
正在为属性 (%1) 生成对照表…</translation>
    </message>
    <message>
        <source>
Working...</source>
        <translation>
正在处理…</translation>
    </message>
    <message>
        <source>Processing may take a *very* long time...

The task is running on a background thread
so you can continue to use your computer
(stop watching this).</source>
        <translation>处理可能需要*很长*时间…

任务在后台运行，
您可以继续使用计算机
（不必一直盯着）。</translation>
    </message>
    <message>
        <source>
Working... %1/%2 folders</source>
        <translation>
正在处理… 文件夹 %1/%2</translation>
    </message>
    <message>
        <source>
Propagating LUT tag... %1/%2 folders</source>
        <translation>
正在应用对照表… 文件夹 %1/%2</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>User guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>About Dravolin</source>
        <translation>关于 Dravolin</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>未安装用户指南。</translation>
    </message>
    <message>
        <source>Tools, pictures and default configuration:</source>
        <translation>工具、图片和默认配置：</translation>
    </message>
    <message>
        <source>user guide</source>
        <translation>用户指南</translation>
    </message>
    <message>
        <source>choose a folder instead of dropping one</source>
        <translation>选择文件夹而不是拖放</translation>
    </message>
    <message>
        <source>show the log of the last run</source>
        <translation>显示最近一次运行的日志</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Alt and an underlined letter: go to that field, or switch that box</source>
        <translation>Alt 加带下划线的字母：转到该字段或切换该复选框</translation>
    </message>
    <message>
        <source>In the log, %1: find, %2: close</source>
        <translation>在日志中，%1：查找，%2：关闭</translation>
    </message>
    <message>
        <source>What is changed in the files</source>
        <translation>文件中要更改的内容</translation>
    </message>
    <message>
        <source>A table is a file named AnonymizationLUT_NAME.txt in
%1
or
%2</source>
        <translation>对照表是名为 AnonymizationLUT_NAME.txt 的文件，位于
%1
或
%2</translation>
    </message>
    <message>
        <source>New values for one attribute</source>
        <translation>一个属性的新值</translation>
    </message>
    <message>
        <source>Working. Another drop would run beside this one.</source>
        <translation>正在处理。再次拖放会同时运行。</translation>
    </message>
    <message>
        <source>No value found, no file changed</source>
        <translation>未找到值，未更改文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 value%2 found, no file changed</source>
        <translation>
            <numerusform>找到 %1 个值，未更改文件</numerusform>
        </translation>
    </message>
    <message>
        <source>No file found</source>
        <translation>未找到文件</translation>
    </message>
    <message>
        <source>No file changed</source>
        <translation>未更改文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 file%2 changed</source>
        <translation>
            <numerusform>已更改 %1 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 unchanged</source>
        <translation>
            <numerusform>%1 个未更改</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out</source>
        <translation>
            <numerusform>%1 个被略过</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %1 folder%2</source>
        <translation>
            <numerusform>位于 %1 个文件夹</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>Patient ID; empty erases it</source>
        <translation>患者 ID；留空则删除</translation>
    </message>
    <message>
        <source>Too long together with the root</source>
        <translation>与根合起来太长</translation>
    </message>
    <message>
        <source>Only digits can be used</source>
        <translation>只能使用数字</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>已拒绝</translation>
    </message>
</context>
</TS>
