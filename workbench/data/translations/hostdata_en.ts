<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<!-- Wordings for texts that serve badly as they stand in the program or in its data. -->
<context>
    <name>OdQCmd_hostAttachExternalReferenceCommand</name>
    <message>
        <source>Drawing (*.dwg;)</source>
        <translation>Drawings (*.dxf);;All files (*)</translation>
    </message>
    <message>
        <source>Drawing (*.dwg;);;Standards (*.dws;);;Drawing Template (*.dwt)</source>
        <translation>Drawings (*.dxf);;Standards (*.dws);;Drawing templates (*.dwt)</translation>
    </message>
</context>
<context>
    <name>CustomTab</name>
    <message>
        <source>The name,%1, is already in use.
You will need to enter a different name.</source>
        <translation>There is a property with the name &quot;%1&quot; already.
Choose another name.</translation>
    </message>
    <message>
        <source>This name must be at least one char long.</source>
        <translation>The name needs at least one character that is no blank.</translation>
    </message>
</context>
<context>
    <name>DirsDialog</name>
    <message>
        <source>Path &quot;%1&quot; does not exists.
Are you sure you want to use this value?</source>
        <translation>The folder &quot;%1&quot; does not exist.
Use it all the same?</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Pick a member of a group.</source>
        <translation>Pick a member of a group</translation>
    </message>
    <message>
        <source>[HelpGroupName] getInputText() returned false or canceled.</source>
        <translation>No groups are listed: the question was cancelled.</translation>
    </message>
</context>
</TS>
