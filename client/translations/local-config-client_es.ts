<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>Client</name>
    <message>
        <source>The settings cannot be changed</source>
        <translation>No se puede cambiar la configuración</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; is no folder.</source>
        <translation>La carpeta de datos «%1» no es una carpeta.</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be made.</source>
        <translation>No se puede crear la carpeta de datos «%1».</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be entered.</source>
        <translation>No se puede acceder a la carpeta de datos «%1».</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;</source>
        <translation>No se puede leer «%1»</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;: %2</source>
        <translation>No se puede importar «%1»: %2</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;</source>
        <translation>No se puede importar «%1»</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>No se puede escribir «%1»</translation>
    </message>
    <message>
        <source>The skin file &apos;%1&apos; cannot be read.</source>
        <translation>No se puede leer el archivo de apariencia «%1».</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; does not exist.</source>
        <translation>La carpeta de datos «%1» no existe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the client&apos;s own file.</source>
        <translation>«%1» es un archivo del propio cliente.</translation>
    </message>
    <message>
        <source>Not all alarm sounds could be put into the data folder.</source>
        <translation>No se han podido copiar todos los sonidos de alarma en la carpeta de datos.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text in the encoding of this system.</source>
        <translation>«%1» no es texto en la codificación de este sistema.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Render the settings dialog to a PNG file.</source>
        <translation>Dibujar el cuadro de configuración en un archivo PNG.</translation>
    </message>
    <message>
        <source>Print all settings as JSON.</source>
        <translation>Mostrar toda la configuración en JSON.</translation>
    </message>
    <message>
        <source>Replace all settings by those of a file.</source>
        <translation>Sustituir toda la configuración por la de un archivo.</translation>
    </message>
    <message>
        <source>Write all settings to a file.</source>
        <translation>Escribir toda la configuración en un archivo.</translation>
    </message>
    <message>
        <source>Print one setting.</source>
        <translation>Mostrar un ajuste.</translation>
    </message>
    <message>
        <source>Change one setting; may be repeated.</source>
        <translation>Cambiar un ajuste; se puede repetir.</translation>
    </message>
    <message>
        <source>Print a JSON schema of the settings.</source>
        <translation>Mostrar un esquema JSON de la configuración.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>DustyBlue or White (default: as in Localcfg.ini, else DustyBlue).</source>
        <translation>DustyBlue o White (predeterminado: según Localcfg.ini; si no, DustyBlue).</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar (default: as in Localcfg.ini, else en).</source>
        <translation>en, zh_CN, es o ar (predeterminado: según Localcfg.ini; si no, en).</translation>
    </message>
    <message>
        <source>Right that the user lacks; may be repeated.</source>
        <translation>Permiso del que carece el usuario; se puede repetir.</translation>
    </message>
    <message>
        <source>Platform server whose connection is watched (default: none).</source>
        <translation>Servidor de la plataforma cuya conexión se vigila (predeterminado: ninguno).</translation>
    </message>
    <message>
        <source>Folder of the client&apos;s files (default: %1).</source>
        <translation>Carpeta de los archivos del cliente (predeterminada: %1).</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado: «%1».</translation>
    </message>
    <message>
        <source>Option --%1 is given more than once.</source>
        <translation>La opción --%1 aparece más de una vez.</translation>
    </message>
    <message>
        <source>Option --%1 needs a value.</source>
        <translation>La opción --%1 necesita un valor.</translation>
    </message>
    <message>
        <source>Option --%1 takes %2, not &apos;%3&apos;.</source>
        <translation>La opción --%1 admite %2, no «%3».</translation>
    </message>
    <message>
        <source>Options --%1 and --%2 exclude each other.</source>
        <translation>Las opciones --%1 y --%2 se excluyen mutuamente.</translation>
    </message>
    <message>
        <source>a positive number</source>
        <translation>un número positivo</translation>
    </message>
    <message>
        <source>a number from 0 to 8 or a section&apos;s name</source>
        <translation>un número de 0 a 8 o el nombre de una sección</translation>
    </message>
    <message>
        <source>Without right 26 there is no section 6.</source>
        <translation>Sin el permiso 26 no existe la sección 6.</translation>
    </message>
    <message>
        <source>DustyBlue or White</source>
        <translation>DustyBlue o White</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar</source>
        <translation>en, zh_CN, es o ar</translation>
    </message>
    <message>
        <source>HOST:PORT</source>
        <translation>SERVIDOR:PUERTO</translation>
    </message>
    <message>
        <source>Surveillance workstation client. Without an action it opens its window and the settings dialog.</source>
        <translation>Cliente de estación de videovigilancia. Sin ninguna acción abre su ventana y el cuadro de configuración.</translation>
    </message>
    <message>
        <source>Section that the dialog shows at first, 0 to 8 or its name: %1 (default: 0).</source>
        <translation>Sección que el cuadro muestra primero, de 0 a 8 o su nombre: %1 (predeterminada: 0).</translation>
    </message>
    <message>
        <source>Option --section belongs to the dialog.</source>
        <translation>La opción --section es propia del cuadro de diálogo.</translation>
    </message>
    <message>
        <source>Environment:
  KV_CLIENT_RESOURCES  Folder of skins, sounds, translations and alarm types.
  DISPLAY              Screen that the window opens on; a picture needs none.
  QT_SCALE_FACTOR      How large to draw, as far as the screen has room for it.
</source>
        <translation>Entorno:
  KV_CLIENT_RESOURCES  Carpeta de apariencias, sonidos, traducciones y tipos de alarma.
  DISPLAY              Pantalla en la que se abre la ventana; una imagen no la necesita.
  QT_SCALE_FACTOR      Tamaño del dibujo, hasta donde lo permita la pantalla.
</translation>
    </message>
</context>
<context>
    <name>ConfigService</name>
    <message>
        <source>The auto-start entry could not be changed: %1.</source>
        <translation>No se ha podido cambiar la entrada de inicio automático: %1.</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>process %1 on %2</source>
        <translation>proceso %1 en %2</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::AlarmCenter</name>
    <message>
        <source>Alarm %1</source>
        <translation>Alarma %1</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::LiveActions</name>
    <message>
        <source>Picture saved in %1</source>
        <translation>Imagen guardada en %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures saved in %1</source>
        <translation>
            <numerusform>Se guardó %n imagen en %1</numerusform>
            <numerusform>Se guardaron %n imágenes en %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording saved in %1</source>
        <translation>Grabación guardada en %1</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>No se puede escribir en %1</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MainWindow</name>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Surveillance Client</source>
        <translation>Cliente de videovigilancia</translation>
    </message>
    <message>
        <source>Local Config...</source>
        <translation>Configuración local...</translation>
    </message>
    <message>
        <source>Settings of this workstation (Ctrl+,)</source>
        <translation>Configuración de esta estación de trabajo (Ctrl+,)</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Picture of the selected window (P)</source>
        <translation>Imagen de la ventana seleccionada (P)</translation>
    </message>
    <message>
        <source>Continuous Snapshot</source>
        <translation>Captura continua</translation>
    </message>
    <message>
        <source>Pictures of the selected window, one after the other</source>
        <translation>Imágenes sucesivas de la ventana seleccionada</translation>
    </message>
    <message>
        <source>Recording of the selected window (Ctrl+R)</source>
        <translation>Grabación de la ventana seleccionada (Ctrl+R)</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>Detener grabación</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Grabar</translation>
    </message>
    <message>
        <source>The client is locked.</source>
        <translation>El cliente está bloqueado.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
    <message>
        <source>Alarm Type:</source>
        <translation>Tipo de alarma:</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>Tipo de alarma</translation>
    </message>
    <message>
        <source>Test Alarm</source>
        <translation>Probar alarma</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>Alarma: %1</translation>
    </message>
    <message>
        <source>The connection to the platform is lost. The settings are locked until it is back.</source>
        <translation>Se ha perdido la conexión con la plataforma. La configuración está bloqueada hasta que se restablezca.</translation>
    </message>
    <message>
        <source>The connection to the platform is back.</source>
        <translation>Se ha restablecido la conexión con la plataforma.</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MapView</name>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::SplitView</name>
    <message>
        <source>Live view</source>
        <translation>Vista en vivo</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Cámara %1</translation>
    </message>
    <message>
        <source>%1, recorded</source>
        <translation>%1, grabando</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>REC</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>There is no setting &apos;%1&apos;.</source>
        <translation>No existe el ajuste «%1».</translation>
    </message>
    <message>
        <source>Impossible value of &apos;%1&apos;: &apos;%2&apos;.</source>
        <translation>Valor no admitido de «%1»: «%2».</translation>
    </message>
</context>
<context>
    <name>SettingsDocument</name>
    <message>
        <source>not a JSON document: %1</source>
        <translation>no es un documento JSON: %1</translation>
    </message>
    <message>
        <source>not a settings document</source>
        <translation>no es un documento de configuración</translation>
    </message>
    <message>
        <source>written by a newer version</source>
        <translation>escrito por una versión más reciente</translation>
    </message>
    <message>
        <source>impossible value of %1</source>
        <translation>valor no admitido de %1</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>Another client uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>Otro cliente usa esta carpeta de datos; mientras tanto no se pueden guardar los cambios.</translation>
    </message>
    <message>
        <source>Another client (%1) uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>Otro cliente (%1) usa esta carpeta de datos; mientras tanto no se pueden guardar los cambios.</translation>
    </message>
    <message>
        <source>The data folder cannot be written: %1. Changes cannot be saved.</source>
        <translation>No se puede escribir en la carpeta de datos: %1. Los cambios no se pueden guardar.</translation>
    </message>
    <message>
        <source>The settings file is missing; the last good settings are used.</source>
        <translation>Falta el archivo de configuración; se usa la última configuración correcta.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1. Changes cannot be saved.</source>
        <translation>No se puede leer el archivo de configuración: %1. Los cambios no se pueden guardar.</translation>
    </message>
    <message>
        <source>The settings file is from a newer version. Changes cannot be saved.</source>
        <translation>El archivo de configuración es de una versión más reciente. Los cambios no se pueden guardar.</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the last good settings are used. %2</source>
        <translation>El archivo de configuración está dañado (%1); se usa la última configuración correcta. %2</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the default settings are used. %2</source>
        <translation>El archivo de configuración está dañado (%1); se usa la configuración predeterminada. %2</translation>
    </message>
    <message>
        <source>It was set aside.</source>
        <translation>Se ha apartado.</translation>
    </message>
    <message>
        <source>The settings file was damaged meanwhile and was set aside.</source>
        <translation>Entretanto, el archivo de configuración se ha dañado y se ha apartado.</translation>
    </message>
    <message>
        <source>The settings file is missing and the last good settings cannot be used; the default settings are used.</source>
        <translation>Falta el archivo de configuración y la última configuración correcta no se puede usar; se usa la predeterminada.</translation>
    </message>
    <message>
        <source>The missing rights in the settings file cannot be understood; the user is taken to have no rights.</source>
        <translation>No se entienden los permisos retirados que indica el archivo de configuración; se considera que el usuario no tiene ninguno.</translation>
    </message>
    <message>
        <source>A folder or a device stands in the place of &apos;%1&apos;. Changes cannot be saved.</source>
        <translation>En el lugar de «%1» hay una carpeta o un dispositivo. Los cambios no se pueden guardar.</translation>
    </message>
</context>
</TS>
