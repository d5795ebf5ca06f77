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
</TS>
