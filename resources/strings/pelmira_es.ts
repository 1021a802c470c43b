<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="backgroundeditscreen.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="backgroundeditscreen.canvas">
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message id="backgroundeditscreen.closePanel">
        <source>Close panel</source>
        <translation>Cerrar el panel</translation>
    </message>
    <message id="backgroundeditscreen.color">
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message id="backgroundeditscreen.mixer">
        <source>Mix the colour</source>
        <translation>Mezclar el color</translation>
    </message>
    <message id="backgroundeditscreen.patternpanel.pattern">
        <source>Pattern %1</source>
        <translation>Patrón %1</translation>
    </message>
    <message id="backgroundeditscreen.patterns">
        <source>Patterns</source>
        <translation>Patrones</translation>
    </message>
    <message id="backgroundeditscreen.photo">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.blur">
        <source>Blur</source>
        <translation>Desenfoque</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.choose">
        <source>Choose another photo</source>
        <translation>Elegir otra foto</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.crop">
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message id="backgroundeditscreen.ratio.a4landscape">
        <source>A4, landscape</source>
        <translation>A4, horizontal</translation>
    </message>
    <message id="backgroundeditscreen.ratio.screen">
        <source>Like this screen</source>
        <translation>Como esta pantalla</translation>
    </message>
    <message id="backgroundeditscreen.shadow">
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message id="backgroundeditscreen.shadowpanel.horizontal">
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message id="backgroundeditscreen.shadowpanel.vertical">
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message id="backgroundeditscreen.title">
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message id="backgroundeditscreen.workArea">
        <source>Composition</source>
        <translation>Composición</translation>
    </message>
    <message id="backgroundeditscreen.workArea.keys">
        <source>Arrow keys move the object, plus and minus scale it, brackets turn it, H flips it</source>
        <translation>Las flechas mueven el objeto, más y menos lo escalan, los corchetes lo giran, H lo voltea</translation>
    </message>
    <message id="camera.button.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="camera.button.retry">
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message id="camera.button.shutter">
        <source>Take photo</source>
        <translation>Hacer la foto</translation>
    </message>
    <message id="camera.button.switch">
        <source>Switch camera</source>
        <extracomment>Between the one in front and the one at the back</extracomment>
        <translation>Cambiar de cámara</translation>
    </message>
    <message id="camera.error.capture">
        <source>That photo didn’t come out. Please try again.</source>
        <translation>No se pudo hacer la foto. Inténtalo de nuevo.</translation>
    </message>
    <message id="camera.error.failed">
        <source>The camera can’t be used right now. Another program may be using it.</source>
        <translation>La cámara no se puede usar ahora. Quizá la esté usando otro programa.</translation>
    </message>
    <message id="camera.error.none">
        <source>No camera found</source>
        <translation>No se ha encontrado ninguna cámara</translation>
    </message>
    <message id="camera.error.none.hint">
        <source>Plug one in, or pick a photo from your library.</source>
        <translation>Conecta una o elige una foto de tus imágenes.</translation>
    </message>
    <message id="camera.error.unplugged">
        <source>The camera was disconnected.</source>
        <translation>La cámara se ha desconectado.</translation>
    </message>
    <message id="camera.state.starting">
        <source>Starting the camera…</source>
        <translation>Iniciando la cámara…</translation>
    </message>
    <message id="colorpicker.field">
        <source>Hue and lightness</source>
        <translation>Tono y luminosidad</translation>
    </message>
    <message id="colorpicker.line">
        <source>Colour strip</source>
        <translation>Franja de colores</translation>
    </message>
    <message id="colorpicker.saturation">
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message id="colorscreen.title">
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message id="commandline.error.address">
        <source>%1 is not a file on this device.</source>
        <extracomment>What the command line can't open</extracomment>
        <translation>%1 no es un archivo de este dispositivo.</translation>
    </message>
    <message id="commandline.error.display">
        <source>There is no display to open a window on.</source>
        <extracomment>No screen to show a window on</extracomment>
        <translation>No hay ninguna pantalla donde abrir una ventana.</translation>
    </message>
    <message id="commandline.error.option">
        <source>Unknown option %1. pelmira --help lists them.</source>
        <extracomment>%1: what was typed</extracomment>
        <translation>Opción desconocida: %1. pelmira --help las enumera.</translation>
    </message>
    <message id="commandline.help">
        <source>Usage: pelmira [OPTION…] [--] [PHOTO]
Cuts things out of photos. PHOTO is a path or a file:// address.

  -h, --help     print this and end
  -v, --version  print the version and end

If it runs already, the photo is opened there.</source>
        <extracomment>Printed in a terminal; keep the columns</extracomment>
        <translation>Uso: pelmira [OPCIÓN…] [--] [FOTO]
Recorta cosas de las fotos. FOTO es una ruta o una dirección file://.

  -h, --help     mostrar esto y terminar
  -v, --version  mostrar la versión y terminar

Si ya está abierto, la foto se abre allí.</translation>
    </message>
    <message id="crop.button.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="crop.button.done">
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message id="crop.frame">
        <source>Crop frame</source>
        <translation>Marco de recorte</translation>
    </message>
    <message id="crop.ratio.free">
        <source>Free</source>
        <extracomment>A crop box of any shape</extracomment>
        <translation>Libre</translation>
    </message>
    <message id="crop.ratio.original">
        <source>Original</source>
        <extracomment>The image's own ratio</extracomment>
        <translation>Original</translation>
    </message>
    <message id="crop.ratio.square">
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message id="crop.title">
        <source>Crop</source>
        <extracomment>Title of the crop tool</extracomment>
        <translation>Recortar</translation>
    </message>
    <message id="cropscreen.error.memory">
        <source>There is not enough memory to crop this photo.</source>
        <translation>No hay memoria suficiente para recortar esta foto.</translation>
    </message>
    <message id="eventlog.delete">
        <source>Delete</source>
        <translation>Borrar</translation>
    </message>
    <message id="eventlog.empty">
        <source>Nothing has been noted.</source>
        <translation>No se ha anotado nada.</translation>
    </message>
    <message id="eventlog.error.delete">
        <source>The log can’t be deleted.</source>
        <translation>No se puede borrar el registro.</translation>
    </message>
    <message id="feedback.error.message">
        <source>Sorry, it looks like your device is not configured for email. You can configure email from the Settings App</source>
        <translation>Parece que el correo no está configurado en este dispositivo. Puedes configurarlo en los ajustes del dispositivo.</translation>
    </message>
    <message id="feedback.error.title">
        <source>Email not configured</source>
        <translation>Correo no configurado</translation>
    </message>
    <message id="filedialog.folder.title">
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message id="filedialog.image.filter">
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message id="filedialog.image.title">
        <source>Choose a photo</source>
        <translation>Elegir una foto</translation>
    </message>
    <message id="generic.access.camera">
        <source>Pelmira can’t use the camera. Allow it in the settings to take photos.</source>
        <translation>Pelmira no puede usar la cámara. Permítelo en los ajustes para hacer fotos.</translation>
    </message>
    <message id="generic.access.photos">
        <source>Pelmira can’t get at your pictures folder. Allow it in the settings to pick and save photos.</source>
        <translation>Pelmira no puede acceder a tu carpeta de imágenes. Permítelo en los ajustes para elegir y guardar fotos.</translation>
    </message>
    <message id="generic.access.settings">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="generic.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="generic.done">
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message id="generic.home">
        <source>Home</source>
        <extracomment>Leaves the work and goes to the first screen</extracomment>
        <translation>Inicio</translation>
    </message>
    <message id="generic.no">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="generic.save">
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message id="generic.yes">
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message id="helppage.file">
        <source>help.html</source>
        <extracomment>File of the help page in this language</extracomment>
        <translation>help_es.html</translation>
    </message>
    <message id="homescreen.button.camera">
        <source>Take a photo</source>
        <translation>Hacer una foto</translation>
    </message>
    <message id="homescreen.button.opening">
        <source>Opening…</source>
        <translation>Abriendo…</translation>
    </message>
    <message id="homescreen.button.photo">
        <source>Choose a photo</source>
        <translation>Elegir una foto</translation>
    </message>
    <message id="homescreen.drop">
        <source>or drop or paste a picture here</source>
        <translation>o suelta o pega una imagen aquí</translation>
    </message>
    <message id="homescreen.error.preferences">
        <source>Settings can’t be written to %1: they hold until Pelmira is closed.</source>
        <extracomment>%1: path of the file</extracomment>
        <translation>No se pueden escribir los ajustes en %1: valen hasta que se cierre Pelmira.</translation>
    </message>
    <message id="homescreen.error.workIsElsewhere">
        <source>Pelmira is open elsewhere: unfinished work will not be kept here.</source>
        <extracomment>Another process of the same user has the folder</extracomment>
        <translation>Pelmira está abierto en otro lugar: aquí no se conservará el trabajo sin terminar.</translation>
    </message>
    <message id="homescreen.error.workIsNotKept">
        <source>Nothing can be written to %1: unfinished work will not be kept.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>No se puede escribir en %1: el trabajo sin terminar no se conservará.</translation>
    </message>
    <message id="homescreen.error.workMemory">
        <source>There is not enough memory to go on with your unfinished cut-out. It is kept.</source>
        <translation>No hay memoria suficiente para continuar con el recorte sin terminar. Se conserva.</translation>
    </message>
    <message id="homescreen.nothingToPaste">
        <source>There is no picture on the clipboard.</source>
        <translation>No hay ninguna imagen en el portapapeles.</translation>
    </message>
    <message id="homescreen.oneAtATime">
        <source>One photo at a time: only %1 is opened.</source>
        <extracomment>%1: name of the file that is opened</extracomment>
        <translation>Una foto cada vez: solo se abre %1.</translation>
    </message>
    <message id="homescreen.pasted">
        <source>The pasted picture</source>
        <translation>La imagen pegada</translation>
    </message>
    <message id="homescreen.tagline">
        <source>Tap the background away.
Keep what matters.</source>
        <translation>Toca el fondo y desaparece.
Quédate con lo que importa.</translation>
    </message>
    <message id="intake.error.damaged">
        <source>%1 is damaged or incomplete.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 está dañado o incompleto.</translation>
    </message>
    <message id="intake.error.empty">
        <source>%1 is empty.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 está vacío.</translation>
    </message>
    <message id="intake.error.missing">
        <source>%1 was not found.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>No se encontró %1.</translation>
    </message>
    <message id="intake.error.notAFile">
        <source>%1 is not a file.</source>
        <extracomment>%1: name of the folder or device</extracomment>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message id="intake.error.notAnImage">
        <source>%1 is not an image that can be opened here.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 no es una imagen que se pueda abrir aquí.</translation>
    </message>
    <message id="intake.error.tooLarge">
        <source>%1 is too large for the memory of this device.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 es demasiado grande para la memoria de este dispositivo.</translation>
    </message>
    <message id="intake.error.tooLargeForGPU">
        <source>This photo is larger than this device can edit.</source>
        <translation>Esta foto es mayor de lo que este dispositivo puede editar.</translation>
    </message>
    <message id="intake.error.unreadable">
        <source>%1 can’t be read.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 no se puede leer.</translation>
    </message>
    <message id="mainscreen.bottombar.offset">
        <source>Offset</source>
        <extracomment>How far above the finger the brush draws</extracomment>
        <translation>Distancia</translation>
    </message>
    <message id="mainscreen.bottombar.size">
        <source>Size</source>
        <extracomment>Of the brush</extracomment>
        <translation>Tamaño</translation>
    </message>
    <message id="mainscreen.bottombar.softness">
        <source>Softness</source>
        <extracomment>Of the brush's edge</extracomment>
        <translation>Suavidad</translation>
    </message>
    <message id="mainscreen.bottombar.tolerance">
        <source>Tolerance</source>
        <extracomment>How far a colour may differ and still be removed</extracomment>
        <translation>Tolerancia</translation>
    </message>
    <message id="mainscreen.brush.circle">
        <source>Circle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Círculo</translation>
    </message>
    <message id="mainscreen.brush.square">
        <source>Square</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Cuadrado</translation>
    </message>
    <message id="mainscreen.brush.triangle">
        <source>Triangle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Triángulo</translation>
    </message>
    <message id="mainscreen.button.back">
        <source>Start over</source>
        <translation>Empezar de nuevo</translation>
    </message>
    <message id="mainscreen.button.background">
        <source>Next background</source>
        <extracomment>Steps between checker, black and white</extracomment>
        <translation>Siguiente fondo</translation>
    </message>
    <message id="mainscreen.button.brush">
        <source>Brush settings</source>
        <translation>Ajustes del pincel</translation>
    </message>
    <message id="mainscreen.button.help">
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message id="mainscreen.button.redMask">
        <source>Show what was removed</source>
        <translation>Mostrar lo borrado</translation>
    </message>
    <message id="mainscreen.button.saveCutOut">
        <source>Save the cut-out</source>
        <translation>Guardar el recorte</translation>
    </message>
    <message id="mainscreen.canvas.keys">
        <source>Arrow keys aim, and Enter removes what is there. With a brush, hold the space bar and paint with the arrow keys.</source>
        <translation>Las flechas apuntan e Intro quita lo que hay ahí. Con un pincel, mantén pulsada la barra espaciadora y pinta con las flechas.</translation>
    </message>
    <message id="mainscreen.canvas.name">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="mainscreen.caption.brush">
        <source>Brush</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Pincel</translation>
    </message>
    <message id="mainscreen.caption.erase">
        <source>Erase</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Borrar</translation>
    </message>
    <message id="mainscreen.caption.invert">
        <source>Invert</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Invertir</translation>
    </message>
    <message id="mainscreen.caption.redMask">
        <source>Mask</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Máscara</translation>
    </message>
    <message id="mainscreen.caption.replace">
        <source>Restore</source>
        <extracomment>At most ten letters: the brush that brings erased parts back</extracomment>
        <translation>Recuperar</translation>
    </message>
    <message id="mainscreen.caption.save">
        <source>Save</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Guardar</translation>
    </message>
    <message id="mainscreen.caption.undo">
        <source>Undo</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message id="mainscreen.caption.wand">
        <source>Wand</source>
        <extracomment>At most ten letters: the magic wand</extracomment>
        <translation>Varita</translation>
    </message>
    <message id="mainscreen.error.graphicsMemory">
        <source>There is not enough graphics memory to show the cut-out. Nothing is lost.</source>
        <translation>No hay memoria gráfica suficiente para mostrar el recorte. No se ha perdido nada.</translation>
    </message>
    <message id="mainscreen.error.maskNotKept">
        <source>This device doesn't give the cut-out back. What was kept last stays.</source>
        <extracomment>The graphics driver refuses to read the mask, so it can't be kept for the next start</extracomment>
        <translation>Este dispositivo no devuelve el recorte. Se conserva el último estado guardado.</translation>
    </message>
    <message id="mainscreen.error.maskNotRead">
        <source>The cut-out so far can’t be read. It stays as it was kept until you change something.</source>
        <translation>No se puede leer el recorte anterior. Se conserva hasta que cambie algo.</translation>
    </message>
    <message id="mainscreen.error.memory">
        <source>There is not enough memory for the wand. Nothing was changed.</source>
        <translation>No hay memoria suficiente para la varita. No se ha cambiado nada.</translation>
    </message>
    <message id="mainscreen.notice.saveFailed">
        <source>The picture could not be saved in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>No se pudo guardar la imagen en %1. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="mainscreen.notice.saveNoPermission">
        <source>You are not allowed to save in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>No tienes permiso para guardar en %1. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="mainscreen.notice.saveNoSpace">
        <source>There is no space left in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>No queda espacio en %1. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="mainscreen.notice.saveReadOnly">
        <source>%1 is read-only. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>%1 es de solo lectura. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="mainscreen.tooltip.erase">
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message id="mainscreen.tooltip.invertMask">
        <source>Invert</source>
        <extracomment>Swaps what is kept and what is removed</extracomment>
        <translation>Invertir</translation>
    </message>
    <message id="mainscreen.tooltip.magicWand">
        <source>Magic wand</source>
        <translation>Varita mágica</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOff">
        <source>Red mask off</source>
        <translation>Máscara roja desactivada</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOn">
        <source>Red mask on</source>
        <translation>Máscara roja activada</translation>
    </message>
    <message id="mainscreen.tooltip.replace">
        <source>Restore</source>
        <extracomment>The brush that brings erased parts back</extracomment>
        <translation>Recuperar</translation>
    </message>
    <message id="mainscreen.tooltip.undo">
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message id="moreapps.close">
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message id="moreapps.download">
        <source>Get</source>
        <extracomment>Leads to the app’s page in the store</extracomment>
        <translation>Obtener</translation>
    </message>
    <message id="moreapps.error">
        <source>Something went wrong. Please try again later.</source>
        <translation>Algo ha salido mal. Inténtalo de nuevo más tarde.</translation>
    </message>
    <message id="moreapps.page">
        <source>Page %1 of %2</source>
        <extracomment>%1: number of the page; %2: of how many</extracomment>
        <translation>Página %1 de %2</translation>
    </message>
    <message id="moreapps.stars">
        <source>%1 of 5 stars</source>
        <extracomment>%1: a number with one decimal</extracomment>
        <translation>%1 de 5 estrellas</translation>
    </message>
    <message id="moreapps.title">
        <source>More apps</source>
        <translation>Más apps</translation>
    </message>
    <message id="openrequest.title">
        <source>Open %1?</source>
        <extracomment>Another start of the application wants this file opened; %1: its name</extracomment>
        <translation>¿Abrir %1?</translation>
    </message>
    <message id="permission.button.choose">
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message id="permission.button.later">
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message id="permission.button.make">
        <source>Make the folder</source>
        <translation>Crear la carpeta</translation>
    </message>
    <message id="permission.limited">
        <source>Your photos can be opened here, but none can be added to this folder.</source>
        <translation>Tus fotos se pueden abrir aquí, pero no se puede añadir ninguna a esta carpeta.</translation>
    </message>
    <message id="permission.message.denied">
        <source>%1 can’t be read. Choose another folder with your photos.</source>
        <translation>No se puede leer %1. Elige otra carpeta con tus fotos.</translation>
    </message>
    <message id="permission.message.make">
        <source>The folder %1 isn’t there yet. Pelmira looks for your photos in it and keeps your cut-outs there.</source>
        <translation>La carpeta %1 aún no existe. Pelmira busca en ella tus fotos y guarda allí tus recortes.</translation>
    </message>
    <message id="permission.title">
        <source>Your photos</source>
        <translation>Tus fotos</translation>
    </message>
    <message id="photopicker.broken">
        <source>Can’t be read</source>
        <translation>No se puede leer</translation>
    </message>
    <message id="photopicker.browse">
        <source>Browse…</source>
        <translation>Examinar…</translation>
    </message>
    <message id="photopicker.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="photopicker.empty">
        <source>No photos in %1 yet. Browse for one elsewhere.</source>
        <translation>Aún no hay fotos en %1. Busca una en otro lugar.</translation>
    </message>
    <message id="photopicker.scanning">
        <source>Looking for photos…</source>
        <translation>Buscando fotos…</translation>
    </message>
    <message id="photopicker.title">
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message id="resume.message">
        <source>Your last cut-out was not finished.</source>
        <translation>Tu último recorte no estaba terminado.</translation>
    </message>
    <message id="resume.title">
        <source>Continue where you left off?</source>
        <translation>¿Continuar donde lo dejaste?</translation>
    </message>
    <message id="rgbmixer.blue">
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message id="rgbmixer.favourite">
        <source>Keep as favourite</source>
        <translation>Guardar como favorito</translation>
    </message>
    <message id="rgbmixer.green">
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message id="rgbmixer.red">
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message id="rgbmixer.swatch">
        <source>Favourite colour %1</source>
        <translation>Color favorito %1</translation>
    </message>
    <message id="savescreen.button.changeColor">
        <source>Change background colour</source>
        <translation>Cambiar el color de fondo</translation>
    </message>
    <message id="savescreen.button.editbackground">
        <source>Edit background</source>
        <translation>Editar el fondo</translation>
    </message>
    <message id="savescreen.button.more">
        <source>More apps</source>
        <extracomment>Leads to the maker’s other apps</extracomment>
        <translation>Más apps</translation>
    </message>
    <message id="savescreen.button.other">
        <source>Other app</source>
        <extracomment>Short caption below an icon</extracomment>
        <translation>Otra app</translation>
    </message>
    <message id="savescreen.button.otherJPG">
        <source>Picture with background to another app</source>
        <translation>Imagen con fondo a otra app</translation>
    </message>
    <message id="savescreen.button.otherPNG">
        <source>Transparent picture to another app</source>
        <translation>Imagen transparente a otra app</translation>
    </message>
    <message id="savescreen.button.rate">
        <source>Rate us</source>
        <extracomment>Leads to the store</extracomment>
        <translation>Valorar</translation>
    </message>
    <message id="savescreen.button.saveJPG">
        <source>Save with background</source>
        <translation>Guardar con fondo</translation>
    </message>
    <message id="savescreen.button.savePNG">
        <source>Save transparent</source>
        <translation>Guardar con transparencia</translation>
    </message>
    <message id="savescreen.error.encode">
        <source>There is not enough memory to save the picture. Your work is still here.</source>
        <translation>No hay memoria suficiente para guardar la imagen. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="savescreen.error.render">
        <source>There is not enough memory to prepare the picture. Your work is still here.</source>
        <translation>No hay memoria suficiente para preparar la imagen. Tu trabajo sigue aquí.</translation>
    </message>
    <message id="savescreen.error.share">
        <source>The picture could not be handed over: the temporary folder can’t be written.</source>
        <translation>No se pudo entregar la imagen: no se puede escribir en la carpeta temporal.</translation>
    </message>
    <message id="savescreen.edges.label">
        <source>Clean edges</source>
        <translation>Bordes limpios</translation>
    </message>
    <message id="savescreen.edges.message">
        <source>Soft as in the photo, without the old background</source>
        <translation>Suaves como en la foto, sin el fondo anterior</translation>
    </message>
    <message id="savescreen.heif.message">
        <source>Transparent pictures take much less space. Some older apps can only open PNG.</source>
        <translation>Las imágenes transparentes ocupan mucho menos. Algunas apps antiguas solo abren PNG.</translation>
    </message>
    <message id="savescreen.heif.switch.label">
        <source>Use HEIF</source>
        <translation>Usar HEIF</translation>
    </message>
    <message id="savescreen.heif.title">
        <source>Smaller files with HEIF</source>
        <translation>Archivos más pequeños con HEIF</translation>
    </message>
    <message id="savescreen.label.custombg">
        <source>Coloured background</source>
        <translation>Fondo de color</translation>
    </message>
    <message id="savescreen.label.transparentbg">
        <source>Transparent background</source>
        <translation>Fondo transparente</translation>
    </message>
    <message id="savescreen.label.whitebg">
        <source>White background</source>
        <translation>Fondo blanco</translation>
    </message>
    <message id="savescreen.problem.chooseFolder">
        <source>Choose another folder…</source>
        <translation>Elegir otra carpeta…</translation>
    </message>
    <message id="savescreen.problem.discard">
        <source>Don’t save</source>
        <translation>No guardar</translation>
    </message>
    <message id="savescreen.problem.title">
        <source>The picture was not saved</source>
        <translation>La imagen no se ha guardado</translation>
    </message>
    <message id="savescreen.problem.tryAgain">
        <source>Try again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message id="savescreen.progress.preparing">
        <source>One moment…</source>
        <translation>Un momento…</translation>
    </message>
    <message id="savescreen.progress.saving">
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
    <message id="savescreen.review.later">
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message id="savescreen.review.message">
        <source>A rating helps others to find it.</source>
        <translation>Una valoración ayuda a otras personas a encontrarla.</translation>
    </message>
    <message id="savescreen.review.rate">
        <source>Rate it</source>
        <translation>Valorar</translation>
    </message>
    <message id="savescreen.review.title">
        <source>Do you like %1?</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>¿Te gusta %1?</translation>
    </message>
    <message id="savescreen.savedialog.cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="savescreen.savedialog.highres">
        <source>High resolution</source>
        <translation>Alta resolución</translation>
    </message>
    <message id="savescreen.savedialog.lowres">
        <source>Low resolution</source>
        <translation>Baja resolución</translation>
    </message>
    <message id="savescreen.savedialog.title">
        <source>Save in which resolution?</source>
        <translation>¿En qué resolución guardar?</translation>
    </message>
    <message id="savescreen.saveprogress.folder">
        <source>Your pictures are in %1</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Tus imágenes están en %1</translation>
    </message>
    <message id="savescreen.saveprogress.showFile">
        <source>Show file</source>
        <extracomment>In the file manager</extracomment>
        <translation>Mostrar archivo</translation>
    </message>
    <message id="savescreen.saveprogress.success">
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message id="savescreen.share.copied">
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message id="savescreen.share.copy">
        <source>Copy</source>
        <extracomment>The picture, into the clipboard</extracomment>
        <translation>Copiar</translation>
    </message>
    <message id="savescreen.share.noApps">
        <source>You don't have any apps installed that can handle images</source>
        <translation>No tienes ninguna app instalada que pueda abrir imágenes</translation>
    </message>
    <message id="savescreen.share.openWith">
        <source>Open with…</source>
        <translation>Abrir con…</translation>
    </message>
    <message id="settings.consent.message">
        <source>Which formats you save and what you switch on would be noted in a file. It stays on this device, and you can read and delete it.</source>
        <translation>En un archivo se anotaría en qué formatos guardas y qué activas. El archivo se queda en este dispositivo, y puedes leerlo y borrarlo.</translation>
    </message>
    <message id="settings.consent.title">
        <source>May a log of use be kept?</source>
        <translation>¿Se puede llevar un registro de uso?</translation>
    </message>
    <message id="settings.error.missing">
        <source>This build of the app doesn’t offer that.</source>
        <translation>Esta versión de la app no lo ofrece.</translation>
    </message>
    <message id="settings.error.noApps">
        <source>The list of apps isn’t available right now.</source>
        <translation>La lista de apps no está disponible en este momento.</translation>
    </message>
    <message id="settings.error.open">
        <source>No app was found that can open this.</source>
        <translation>No se ha encontrado ninguna app que pueda abrir esto.</translation>
    </message>
    <message id="settings.eventLog.hint">
        <source>Stays on this device. Nothing is sent.</source>
        <extracomment>About the log of use</extracomment>
        <translation>Se queda en este dispositivo. No se envía nada.</translation>
    </message>
    <message id="settings.eventLog.keep">
        <source>Keep the log of use</source>
        <extracomment>The switch</extracomment>
        <translation>Llevar el registro de uso</translation>
    </message>
    <message id="settings.header.device">
        <source>On this device</source>
        <translation>En este dispositivo</translation>
    </message>
    <message id="settings.header.legal">
        <source>Legal</source>
        <translation>Información legal</translation>
    </message>
    <message id="settings.header.support">
        <source>Support Pelmira</source>
        <translation>Apoyar Pelmira</translation>
    </message>
    <message id="settings.row.consent">
        <source>Consent</source>
        <translation>Consentimiento</translation>
    </message>
    <message id="settings.row.eventLog">
        <source>Log of use</source>
        <extracomment>A record of what is used in the app</extracomment>
        <translation>Registro de uso</translation>
    </message>
    <message id="settings.row.feedback">
        <source>Send feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message id="settings.row.follow">
        <source>Follow on Instagram</source>
        <translation>Seguir en Instagram</translation>
    </message>
    <message id="settings.row.moreApps">
        <source>More apps</source>
        <translation>Más apps</translation>
    </message>
    <message id="settings.row.privacy">
        <source>Privacy policy</source>
        <translation>Política de privacidad</translation>
    </message>
    <message id="settings.row.rate">
        <source>Rate Pelmira</source>
        <translation>Valorar Pelmira</translation>
    </message>
    <message id="settings.row.share">
        <source>Share %1</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>Compartir %1</translation>
    </message>
    <message id="settings.row.terms">
        <source>Terms of use</source>
        <translation>Condiciones de uso</translation>
    </message>
    <message id="settings.share.copied">
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message id="settings.share.copy">
        <source>Copy the link</source>
        <translation>Copiar el enlace</translation>
    </message>
    <message id="settings.share.mail">
        <source>Send by email</source>
        <translation>Enviar por correo</translation>
    </message>
    <message id="settings.title">
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message id="startover.message">
        <source>Your work on this photo will be lost.</source>
        <translation>Se perderá tu trabajo en esta foto.</translation>
    </message>
    <message id="startover.title">
        <source>Start over?</source>
        <translation>¿Empezar de nuevo?</translation>
    </message>
</context>
</TS>
