<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>CAlarmConfig</name>
    <message>
        <source>Alarm Config</source>
        <translation>Configuración de alarmas</translation>
    </message>
    <message>
        <source>Play alarm sound</source>
        <translation>Reproducir sonido de alarma</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>Tipo de alarma</translation>
    </message>
    <message>
        <source>Alarm Type of the Sound</source>
        <translation>Tipo de alarma del sonido</translation>
    </message>
    <message>
        <source>Sound Path</source>
        <translation>Ruta del sonido</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>En bucle</translation>
    </message>
    <message>
        <source>Map flashes when alarm occurs</source>
        <translation>El mapa parpadea al producirse una alarma</translation>
    </message>
    <message>
        <source>Alarm Types that Flash</source>
        <translation>Tipos de alarma que parpadean</translation>
    </message>
    <message>
        <source>Display alarm-linked video when alarm occurs</source>
        <translation>Mostrar el vídeo vinculado al producirse una alarma</translation>
    </message>
    <message>
        <source>Open Video Type</source>
        <translation>Apertura del vídeo</translation>
    </message>
    <message>
        <source>As Pop Up</source>
        <translation>En ventana emergente</translation>
    </message>
    <message>
        <source>In Live View</source>
        <translation>En la vista en vivo</translation>
    </message>
</context>
<context>
    <name>CBasicConfig</name>
    <message>
        <source>Basic Config</source>
        <translation>Configuración básica</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>(Takes effect after restart)</source>
        <translation>(Se aplica tras reiniciar)</translation>
    </message>
    <message>
        <source>Client Size</source>
        <translation>Tamaño del cliente</translation>
    </message>
    <message>
        <source>Show time zone(Takes effect after restart)</source>
        <translation>Mostrar zona horaria (se aplica tras reiniciar)</translation>
    </message>
    <message>
        <source>Enable time sync with platform server</source>
        <translation>Sincronizar la hora con el servidor de la plataforma</translation>
    </message>
    <message>
        <source>Auto Login</source>
        <translation>Inicio de sesión automático</translation>
    </message>
    <message>
        <source>Auto restart after reboot</source>
        <translation>Iniciar automáticamente con el equipo</translation>
    </message>
    <message>
        <source>Display previous live view after restart</source>
        <translation>Mostrar la última vista en vivo tras reiniciar</translation>
    </message>
    <message>
        <source>Self-adaptive audio talk parameter</source>
        <translation>Parámetros de intercomunicación adaptativos</translation>
    </message>
    <message>
        <source>Show device node</source>
        <translation>Mostrar nodo del dispositivo</translation>
    </message>
    <message>
        <source>Display live view thumbnail</source>
        <translation>Mostrar miniatura de la vista en vivo</translation>
    </message>
    <message>
        <source>Auto hide task bar</source>
        <translation>Ocultar la barra de tareas automáticamente</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Claro</translation>
    </message>
</context>
<context>
    <name>CCaptureConfig</name>
    <message>
        <source>Capture Config</source>
        <translation>Configuración de capturas</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>Formato de imagen</translation>
    </message>
    <message>
        <source>Picture Path</source>
        <translation>Ruta de imágenes</translation>
    </message>
    <message>
        <source>Picture Name</source>
        <translation>Nombre de imagen</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>Intervalo de captura</translation>
    </message>
    <message>
        <source>(Not less than 1s)</source>
        <translation>(Mínimo 1 s)</translation>
    </message>
    <message>
        <source>Continuous Snapshot Times</source>
        <translation>Capturas continuas</translation>
    </message>
    <message>
        <source>(2-10)</source>
        <translation>(2-10)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Record Playback</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>Video Wall</source>
        <translation>Muro de vídeo</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Local Config</source>
        <translation>Configuración local</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminados</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Failed to save config</source>
        <translation>No se ha podido guardar la configuración</translation>
    </message>
    <message>
        <source>Failed to save configuration, some values are illegal.</source>
        <translation>No se ha podido guardar la configuración: algunos valores no son válidos.</translation>
    </message>
    <message>
        <source>Not saved, some values are illegal.</source>
        <translation>No se ha guardado: algunos valores no son válidos.</translation>
    </message>
</context>
<context>
    <name>CPlaybackConfig</name>
    <message>
        <source>Playback Config</source>
        <translation>Configuración de reproducción</translation>
    </message>
    <message>
        <source>Dev Recording Stream</source>
        <translation>Flujo de grabación del dispositivo</translation>
    </message>
    <message>
        <source>Enable high definition adjustment</source>
        <translation>Activar ajuste de alta definición</translation>
    </message>
</context>
<context>
    <name>CRecordConfig</name>
    <message>
        <source>Record Config</source>
        <translation>Configuración de grabación</translation>
    </message>
    <message>
        <source>Record Path</source>
        <translation>Ruta de grabaciones</translation>
    </message>
    <message>
        <source>Record Name</source>
        <translation>Nombre de grabación</translation>
    </message>
    <message>
        <source>Max Size of Record</source>
        <translation>Tamaño máx. de grabación</translation>
    </message>
    <message>
        <source>(100-1500M)</source>
        <translation>(100-1500 MB)</translation>
    </message>
</context>
<context>
    <name>CSecurityConfig</name>
    <message>
        <source>CSecurityConfig</source>
        <translation>Configuración de seguridad</translation>
    </message>
    <message>
        <source>Audio/Video Transmission Encryption (Takes effect after restart)</source>
        <translation>Cifrado de la transmisión de audio y vídeo (se aplica tras reiniciar)</translation>
    </message>
</context>
<context>
    <name>CShortcutKeyConfig</name>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Keyboard Type</source>
        <translation>Tipo de teclado</translation>
    </message>
    <message>
        <source>PC Keyboard</source>
        <translation>Teclado de PC</translation>
    </message>
    <message>
        <source>USB NKB Joystick</source>
        <translation>Teclado de red USB con joystick</translation>
    </message>
</context>
<context>
    <name>CSplitWndNumConfig</name>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>8 Windows</source>
        <translation>8 ventanas</translation>
    </message>
    <message>
        <source>1 Window</source>
        <translation>1 ventana</translation>
    </message>
    <message>
        <source>4 Windows</source>
        <translation>4 ventanas</translation>
    </message>
    <message>
        <source>6 Windows</source>
        <translation>6 ventanas</translation>
    </message>
    <message>
        <source>13 Windows</source>
        <translation>13 ventanas</translation>
    </message>
    <message>
        <source>9 Windows</source>
        <translation>9 ventanas</translation>
    </message>
    <message>
        <source>16 Windows</source>
        <translation>16 ventanas</translation>
    </message>
    <message>
        <source>20 Windows</source>
        <translation>20 ventanas</translation>
    </message>
    <message>
        <source>36 Windows</source>
        <translation>36 ventanas</translation>
    </message>
    <message>
        <source>25 Windows</source>
        <translation>25 ventanas</translation>
    </message>
</context>
<context>
    <name>CTvWallConfig</name>
    <message>
        <source>Video Wall Config</source>
        <translation>Configuración del muro de vídeo</translation>
    </message>
    <message>
        <source>Default Stream Type</source>
        <translation>Tipo de flujo predeterminado</translation>
    </message>
    <message>
        <source>Stay Time(s)</source>
        <translation>Permanencia (s)</translation>
    </message>
    <message>
        <source>(15-65535s)</source>
        <translation>(15-65535 s)</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>Tipo de flujo</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>Abrir el flujo secundario si la división supera el umbral</translation>
    </message>
    <message>
        <source>Binding Mode</source>
        <translation>Modo de vinculación</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Secuencia</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Inquiry</source>
        <translation>Preguntar</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>Doble clic en el vídeo: maximizar la ventana y cambiar al flujo principal</translation>
    </message>
</context>
<context>
    <name>CVideoConfig</name>
    <message>
        <source>Video Config</source>
        <translation>Configuración de vídeo</translation>
    </message>
    <message>
        <source>Default Split</source>
        <translation>División predeterminada</translation>
    </message>
    <message>
        <source>Window Display</source>
        <translation>Presentación de la ventana</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>Tipo de flujo</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>Abrir el flujo secundario si la división supera el umbral</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>Modo de reproducción</translation>
    </message>
    <message>
        <source>Video Buffer Time</source>
        <translation>Búfer de vídeo</translation>
    </message>
    <message>
        <source>(1-1500 ms)</source>
        <translation>(1-1500 ms)</translation>
    </message>
    <message>
        <source>CPU Usage Prompt Threshold</source>
        <translation>Umbral de aviso de uso de CPU</translation>
    </message>
    <message>
        <source>Instant Playback Time</source>
        <translation>Reproducción instantánea</translation>
    </message>
    <message>
        <source>Custom Instant Playback Time</source>
        <translation>Reproducción instantánea personalizada</translation>
    </message>
    <message>
        <source>Time Unit</source>
        <translation>Unidad de tiempo</translation>
    </message>
    <message>
        <source>10s-24h</source>
        <translation>10 s-24 h</translation>
    </message>
    <message>
        <source>Enable hardware acceleration(Takes effect after reopening video)</source>
        <translation>Activar aceleración por hardware (se aplica al reabrir el vídeo)</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>Doble clic en el vídeo: maximizar la ventana y cambiar al flujo principal</translation>
    </message>
    <message>
        <source>Close videos being played after long-time inactivity</source>
        <translation>Cerrar los vídeos en reproducción tras una inactividad prolongada</translation>
    </message>
    <message>
        <source>Silent Time</source>
        <translation>Tiempo de inactividad</translation>
    </message>
    <message>
        <source>(1-30 min)</source>
        <translation>(1-30 min)</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CAlarmConfig</name>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Select a wav file</source>
        <translation>Seleccione un archivo wav</translation>
    </message>
    <message>
        <source>WAVE Files (*.wav)</source>
        <translation>Archivos WAVE (*.wav)</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CCaptureConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>Hora_N.ºCanal</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>Hora_NombreCanal</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>N.ºCanal_Hora</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>NombreCanal_Hora</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>The Path length of Picture should not longer than 180</source>
        <translation>La ruta de imágenes no debe superar los 180 bytes</translation>
    </message>
    <message>
        <source>Continue snapshot time interval must be longer than 1s.</source>
        <translation>El intervalo de captura continua debe ser de 1 s como mínimo.</translation>
    </message>
    <message>
        <source>Continuously snapshot 2-10 pic.</source>
        <translation>Captura continua de 2-10 imágenes.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CFindField</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CPlaybackConfig</name>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Main Stream</source>
        <translation>Flujo principal</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>Flujo secundario 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>Flujo secundario 2</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CRecordConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>Hora_N.ºCanal</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>Hora_NombreCanal</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>N.ºCanal_Hora</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>NombreCanal_Hora</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>The Path length of Record should not longer than 168</source>
        <translation>La ruta de grabaciones no debe superar los 168 bytes</translation>
    </message>
    <message>
        <source>(%1-%2M)</source>
        <translation>(%1-%2 MB)</translation>
    </message>
    <message>
        <source>Max size of a file must be within %1-%2.</source>
        <translation>El tamaño máximo de archivo debe estar entre %1 y %2.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CSecurityConfig</name>
    <message>
        <source>Prompt</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Audio and video encryption can ensure secure data transmission and prevent others from directly obtaining the audio and video for analysis. Are you sure to disable the function?</source>
        <translation>El cifrado de audio y vídeo garantiza la transmisión segura de los datos e impide que otros obtengan directamente el audio y el vídeo para analizarlos. ¿Seguro que desea desactivar la función?</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CShortcutKeyConfig</name>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Mover arriba</translation>
    </message>
    <message>
        <source>Lock Client</source>
        <translation>Bloquear cliente</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Mover abajo</translation>
    </message>
    <message>
        <source>Snap Single Window</source>
        <translation>Capturar una ventana</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>Mover a la izquierda</translation>
    </message>
    <message>
        <source>One-click Snapshot</source>
        <translation>Captura con un clic</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>Mover a la derecha</translation>
    </message>
    <message>
        <source>Local Record</source>
        <translation>Grabación local</translation>
    </message>
    <message>
        <source>Aperture-</source>
        <translation>Diafragma-</translation>
    </message>
    <message>
        <source>Preset 1</source>
        <translation>Preajuste 1</translation>
    </message>
    <message>
        <source>Aperture+</source>
        <translation>Diafragma+</translation>
    </message>
    <message>
        <source>Preset 2</source>
        <translation>Preajuste 2</translation>
    </message>
    <message>
        <source>Focus-</source>
        <translation>Enfoque-</translation>
    </message>
    <message>
        <source>Preset 3</source>
        <translation>Preajuste 3</translation>
    </message>
    <message>
        <source>Focus+</source>
        <translation>Enfoque+</translation>
    </message>
    <message>
        <source>Preset 4</source>
        <translation>Preajuste 4</translation>
    </message>
    <message>
        <source>Zoom-</source>
        <translation>Zoom-</translation>
    </message>
    <message>
        <source>Preset 5</source>
        <translation>Preajuste 5</translation>
    </message>
    <message>
        <source>Zoom+</source>
        <translation>Zoom+</translation>
    </message>
    <message>
        <source>Preset 6</source>
        <translation>Preajuste 6</translation>
    </message>
    <message>
        <source>Open Single Window</source>
        <translation>Abrir una ventana</translation>
    </message>
    <message>
        <source>Preset 7</source>
        <translation>Preajuste 7</translation>
    </message>
    <message>
        <source>Close Single Window</source>
        <translation>Cerrar una ventana</translation>
    </message>
    <message>
        <source>Preset 8</source>
        <translation>Preajuste 8</translation>
    </message>
    <message>
        <source>Open Full Screen</source>
        <translation>Abrir pantalla completa</translation>
    </message>
    <message>
        <source>Preset 9</source>
        <translation>Preajuste 9</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>Salir de pantalla completa</translation>
    </message>
    <message>
        <source>Preset 10</source>
        <translation>Preajuste 10</translation>
    </message>
    <message>
        <source>Tours Pause/Continue</source>
        <translation>Pausar/continuar secuencias</translation>
    </message>
    <message>
        <source>IRIS- (Oper Mode)</source>
        <translation>IRIS- (modo operación)</translation>
    </message>
    <message>
        <source>IRIS+ (Oper Mode)</source>
        <translation>IRIS+ (modo operación)</translation>
    </message>
    <message>
        <source>Focus- (Oper Mode)</source>
        <translation>Enfoque- (modo operación)</translation>
    </message>
    <message>
        <source>Focus+ (Oper Mode)</source>
        <translation>Enfoque+ (modo operación)</translation>
    </message>
    <message>
        <source>Zoom- (Oper Mode)</source>
        <translation>Zoom- (modo operación)</translation>
    </message>
    <message>
        <source>Zoom+ (Oper Mode)</source>
        <translation>Zoom+ (modo operación)</translation>
    </message>
    <message>
        <source>IRIS- (Edit Mode)</source>
        <translation>IRIS- (modo edición)</translation>
    </message>
    <message>
        <source>IRIS+ (Edit Mode)</source>
        <translation>IRIS+ (modo edición)</translation>
    </message>
    <message>
        <source>Focus- (Edit Mode)</source>
        <translation>Enfoque- (modo edición)</translation>
    </message>
    <message>
        <source>Focus+ (Edit Mode)</source>
        <translation>Enfoque+ (modo edición)</translation>
    </message>
    <message>
        <source>Choose Output Screen</source>
        <translation>Elegir pantalla de salida</translation>
    </message>
    <message>
        <source>NUM+PLAY</source>
        <translation>NUM+PLAY</translation>
    </message>
    <message>
        <source>Screen Maximization</source>
        <translation>Maximizar pantalla</translation>
    </message>
    <message>
        <source>NUM+FN</source>
        <translation>NUM+FN</translation>
    </message>
    <message>
        <source>Choose Number of Windows</source>
        <translation>Elegir número de ventanas</translation>
    </message>
    <message>
        <source>NUM+MULT</source>
        <translation>NUM+MULT</translation>
    </message>
    <message>
        <source>Restore Screen</source>
        <translation>Restaurar pantalla</translation>
    </message>
    <message>
        <source>Choose Window</source>
        <translation>Elegir ventana</translation>
    </message>
    <message>
        <source>NUM+ID</source>
        <translation>NUM+ID</translation>
    </message>
    <message>
        <source>Call Preset</source>
        <translation>Llamar preajuste</translation>
    </message>
    <message>
        <source>NUM+PRESET</source>
        <translation>NUM+PRESET</translation>
    </message>
    <message>
        <source>Select input source</source>
        <translation>Seleccionar fuente de entrada</translation>
    </message>
    <message>
        <source>NUM+CAM</source>
        <translation>NUM+CAM</translation>
    </message>
    <message>
        <source>Hori Pan</source>
        <translation>Giro horizontal</translation>
    </message>
    <message>
        <source>PAN</source>
        <translation>PAN</translation>
    </message>
    <message>
        <source>Previous Video Source</source>
        <translation>Fuente de vídeo anterior</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>SHIFT</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Barrido</translation>
    </message>
    <message>
        <source>SCAN</source>
        <translation>SCAN</translation>
    </message>
    <message>
        <source>Next Video Source</source>
        <translation>Fuente de vídeo siguiente</translation>
    </message>
    <message>
        <source>ENTER</source>
        <translation>ENTER</translation>
    </message>
    <message>
        <source>Cruise</source>
        <translation>Ronda</translation>
    </message>
    <message>
        <source>NUM+TOUR</source>
        <translation>NUM+TOUR</translation>
    </message>
    <message>
        <source>Erase One Bit</source>
        <translation>Borrar un dígito</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>NUM+PATTERN</source>
        <translation>NUM+PATTERN</translation>
    </message>
    <message>
        <source>Switch Mode</source>
        <translation>Cambiar de modo</translation>
    </message>
    <message>
        <source>SETUP</source>
        <translation>SETUP</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Rocker Control</source>
        <translation>Palanca de control</translation>
    </message>
    <message>
        <source>Main/Sub Stream Setup</source>
        <translation>Ajuste de flujo principal/secundario</translation>
    </message>
    <message>
        <source>1+SETUP</source>
        <translation>1+SETUP</translation>
    </message>
    <message>
        <source>Save Task</source>
        <translation>Guardar tarea</translation>
    </message>
    <message>
        <source>Execute Tour in All Screens</source>
        <translation>Iniciar secuencia en todas las pantallas</translation>
    </message>
    <message>
        <source>Stop Tour in All Screens</source>
        <translation>Detener secuencia en todas las pantallas</translation>
    </message>
    <message>
        <source>PTZ Menu</source>
        <translation>Menú PTZ</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CTvWallConfig</name>
    <message>
        <source>Main Stream</source>
        <translation>Flujo principal</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>Flujo secundario 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>Flujo secundario 2</translation>
    </message>
    <message>
        <source>Local Signal</source>
        <translation>Señal local</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Stay time must be within %1-%2s.</source>
        <translation>El tiempo de permanencia debe estar entre %1 y %2 s.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CVideoConfig</name>
    <message>
        <source>Original Scale</source>
        <translation>Escala original</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Real-time Priority</source>
        <translation>Prioridad al tiempo real</translation>
    </message>
    <message>
        <source>Fluency Priority</source>
        <translation>Prioridad a la fluidez</translation>
    </message>
    <message>
        <source>Balance Priority</source>
        <translation>Prioridad al equilibrio</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Horas</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minutos</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>%1-%2 ms</source>
        <translation>%1-%2 ms</translation>
    </message>
    <message>
        <source>s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Video buffer time range must be within %1-%2 ms.</source>
        <translation>El búfer de vídeo debe estar entre %1 y %2 ms.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::QCheckableComboBox</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>%1 ...</source>
        <translation>%1 ...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
</context>
</TS>
