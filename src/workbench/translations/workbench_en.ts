<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Workbench::EditorTabs</name>
    <message numerus="yes">
        <source>%n files have changes that are not saved: %1.</source>
        <translation>
            <numerusform>%n file has changes that are not saved: %1.</numerusform>
            <numerusform>%n files have changes that are not saved: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::IpActions</name>
    <message numerus="yes">
        <source>%n IPs of this project are made for other devices.</source>
        <translation>
            <numerusform>%n IP of this project is made for another device.</numerusform>
            <numerusform>%n IPs of this project are made for other devices.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::KeptConfigurations</name>
    <message numerus="yes">
        <source>%1, and %n more before</source>
        <translation>
            <numerusform>%1, and %n more before</numerusform>
            <numerusform>%1, and %n more before</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::MessageModel</name>
    <message numerus="yes">
        <source>%1 (%n times)</source>
        <translation>
            <numerusform>%1 (%n time)</numerusform>
            <numerusform>%1 (%n times)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::PluginList</name>
    <message numerus="yes">
        <source>%n plug-ins cannot be used.</source>
        <translation>
            <numerusform>%n plug-in cannot be used.</numerusform>
            <numerusform>%n plug-ins cannot be used.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::PreviewPanel</name>
    <message numerus="yes">
        <source>OK would write %1 of %n files.</source>
        <translation>
            <numerusform>OK would write %1 of %n file.</numerusform>
            <numerusform>OK would write %1 of %n files.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::ProjectModel</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::ResultPage</name>
    <message numerus="yes">
        <source>Primitives (%n kinds)</source>
        <translation>
            <numerusform>Primitives (%n kind)</numerusform>
            <numerusform>Primitives (%n kinds)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::SessionKeeper</name>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1, …</source>
        <translation>
            <numerusform>%n tab of the last time cannot be shown again: %1, …</numerusform>
            <numerusform>%n tabs of the last time cannot be shown again: %1, …</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n tab(s) of the last time cannot be shown again: %1.</source>
        <translation>
            <numerusform>%n tab of the last time cannot be shown again: %1.</numerusform>
            <numerusform>%n tabs of the last time cannot be shown again: %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::SoftwarePage</name>
    <message numerus="yes">
        <source>… and %n more bytes</source>
        <translation>
            <numerusform>… and %n more byte</numerusform>
            <numerusform>… and %n more bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more in the tool tip.</source>
        <translation>
            <numerusform>%n more in the tool tip.</numerusform>
            <numerusform>%n more in the tool tip.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are written, %1 were there already.</source>
        <translation>
            <numerusform>%n file is written, %1 were there already.</numerusform>
            <numerusform>%n files are written, %1 were there already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files of earlier exports are removed.</source>
        <translation>
            <numerusform>%n file of an earlier export is removed.</numerusform>
            <numerusform>%n files of earlier exports are removed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Workbench::StartPage</name>
    <message numerus="yes">
        <source>%n more are in the tree of the project.</source>
        <translation>
            <numerusform>%n more is in the tree of the project.</numerusform>
            <numerusform>%n more are in the tree of the project.</numerusform>
        </translation>
    </message>
</context>
</TS>
