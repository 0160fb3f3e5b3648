<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>CAudioOutput</name>
    <message>
        <source>Sounds cannot be heard, there is no audio device.</source>
        <translation>No se oirán sonidos: no hay ningún dispositivo de audio.</translation>
    </message>
</context>
<context>
    <name>CErrorCode</name>
    <message>
        <source>success</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>el disco está lleno</translation>
    </message>
    <message>
        <source>no permission to use the file or its folder</source>
        <translation>sin permiso para usar el archivo o su carpeta</translation>
    </message>
    <message>
        <source>another client uses the same data folder</source>
        <translation>otro cliente usa la misma carpeta de datos</translation>
    </message>
    <message>
        <source>the folder does not exist</source>
        <translation>la carpeta no existe</translation>
    </message>
    <message>
        <source>the device reported an error</source>
        <translation>el dispositivo notificó un error</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>el archivo está dañado</translation>
    </message>
    <message>
        <source>the file cannot be read and is left as it is</source>
        <translation>el archivo no se puede leer y se deja como está</translation>
    </message>
    <message>
        <source>the file was changed by another program</source>
        <translation>otro programa ha modificado el archivo</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>written, but not yet safe from a power cut</source>
        <translation>escrito, pero aún no a salvo de un corte de corriente</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>el archivo es demasiado grande</translation>
    </message>
    <message>
        <source>there is a file of that name already</source>
        <translation>ya existe un archivo con ese nombre</translation>
    </message>
    <message>
        <source>a folder or device has the name of the file</source>
        <translation>una carpeta o un dispositivo lleva el nombre del archivo</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>otro programa está usando el archivo</translation>
    </message>
    <message>
        <source>%1: %2 (code %3)</source>
        <translation>%1: %2 (código %3)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1 (código %2)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
</context>
<context>
    <name>CLocalIniFile</name>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>No se puede escribir «%1»</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmType</name>
    <message>
        <source>No alarm types are known, for &apos;%1&apos; cannot be used</source>
        <translation>No se conoce ningún tipo de alarma, pues «%1» no se puede usar</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmTypeMenu</name>
    <message>
        <source>Alarm categories</source>
        <translation>Categorías de alarma</translation>
    </message>
    <message>
        <source>Alarm types</source>
        <translation>Tipos de alarma</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CPathEdit</name>
    <message>
        <source>Browse</source>
        <translation>Examinar</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Seleccione una carpeta</translation>
    </message>
    <message>
        <source>Browse: %1</source>
        <translation>Examinar: %1</translation>
    </message>
</context>
</TS>
