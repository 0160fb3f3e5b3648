<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>KVGUI::KvDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>KVGUI::KvLineEdit</name>
    <message>
        <source>Illegal value</source>
        <translation>Valor no válido</translation>
    </message>
    <message>
        <source>Illegal value, %1</source>
        <translation>Valor no válido, %1</translation>
    </message>
</context>
<context>
    <name>KvMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otro</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
</TS>
