<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="backgroundeditscreen.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="backgroundeditscreen.canvas">
        <source>Canvas</source>
        <translation>Format</translation>
    </message>
    <message id="backgroundeditscreen.closePanel">
        <source>Close panel</source>
        <translation>Bereich schließen</translation>
    </message>
    <message id="backgroundeditscreen.color">
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message id="backgroundeditscreen.mixer">
        <source>Mix the colour</source>
        <translation>Farbe mischen</translation>
    </message>
    <message id="backgroundeditscreen.patternpanel.pattern">
        <source>Pattern %1</source>
        <translation>Muster %1</translation>
    </message>
    <message id="backgroundeditscreen.patterns">
        <source>Patterns</source>
        <translation>Muster</translation>
    </message>
    <message id="backgroundeditscreen.photo">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.blur">
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.choose">
        <source>Choose another photo</source>
        <translation>Anderes Foto wählen</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.crop">
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message id="backgroundeditscreen.ratio.a4landscape">
        <source>A4, landscape</source>
        <translation>A4 quer</translation>
    </message>
    <message id="backgroundeditscreen.ratio.screen">
        <source>Like this screen</source>
        <translation>Wie dieser Bildschirm</translation>
    </message>
    <message id="backgroundeditscreen.shadow">
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message id="backgroundeditscreen.shadowpanel.horizontal">
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message id="backgroundeditscreen.shadowpanel.vertical">
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message id="backgroundeditscreen.title">
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message id="backgroundeditscreen.workArea">
        <source>Composition</source>
        <translation>Komposition</translation>
    </message>
    <message id="backgroundeditscreen.workArea.keys">
        <source>Arrow keys move the object, plus and minus scale it, brackets turn it, H flips it</source>
        <translation>Pfeiltasten bewegen das Objekt, Plus und Minus ändern die Größe, eckige Klammern drehen es, H spiegelt es</translation>
    </message>
    <message id="camera.button.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="camera.button.retry">
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message id="camera.button.shutter">
        <source>Take photo</source>
        <translation>Foto aufnehmen</translation>
    </message>
    <message id="camera.button.switch">
        <source>Switch camera</source>
        <extracomment>Between the one in front and the one at the back</extracomment>
        <translation>Kamera wechseln</translation>
    </message>
    <message id="camera.error.capture">
        <source>That photo didn’t come out. Please try again.</source>
        <translation>Das Foto ist nichts geworden. Bitte versuche es noch einmal.</translation>
    </message>
    <message id="camera.error.failed">
        <source>The camera can’t be used right now. Another program may be using it.</source>
        <translation>Die Kamera lässt sich gerade nicht verwenden. Vielleicht benutzt sie ein anderes Programm.</translation>
    </message>
    <message id="camera.error.none">
        <source>No camera found</source>
        <translation>Keine Kamera gefunden</translation>
    </message>
    <message id="camera.error.none.hint">
        <source>Plug one in, or pick a photo from your library.</source>
        <translation>Schließe eine an oder wähle ein Foto aus deinen Bildern.</translation>
    </message>
    <message id="camera.error.unplugged">
        <source>The camera was disconnected.</source>
        <translation>Die Kamera wurde getrennt.</translation>
    </message>
    <message id="camera.state.starting">
        <source>Starting the camera…</source>
        <translation>Kamera wird gestartet …</translation>
    </message>
    <message id="colorpicker.field">
        <source>Hue and lightness</source>
        <translation>Farbton und Helligkeit</translation>
    </message>
    <message id="colorpicker.line">
        <source>Colour strip</source>
        <translation>Farbstreifen</translation>
    </message>
    <message id="colorpicker.saturation">
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message id="colorscreen.title">
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message id="commandline.error.address">
        <source>%1 is not a file on this device.</source>
        <extracomment>What the command line can't open</extracomment>
        <translation>%1 ist keine Datei auf diesem Gerät.</translation>
    </message>
    <message id="commandline.error.display">
        <source>There is no display to open a window on.</source>
        <extracomment>No screen to show a window on</extracomment>
        <translation>Es gibt keine Anzeige, auf der sich ein Fenster öffnen ließe.</translation>
    </message>
    <message id="commandline.error.option">
        <source>Unknown option %1. pelmira --help lists them.</source>
        <extracomment>%1: what was typed</extracomment>
        <translation>Unbekannte Option %1. pelmira --help nennt alle.</translation>
    </message>
    <message id="commandline.help">
        <source>Usage: pelmira [OPTION…] [--] [PHOTO]
Cuts things out of photos. PHOTO is a path or a file:// address.

  -h, --help     print this and end
  -v, --version  print the version and end

If it runs already, the photo is opened there.</source>
        <extracomment>Printed in a terminal; keep the columns</extracomment>
        <translation>Aufruf: pelmira [OPTION…] [--] [FOTO]
Stellt Dinge auf Fotos frei. FOTO ist ein Pfad oder eine file://-Adresse.

  -h, --help     dies ausgeben und enden
  -v, --version  die Version ausgeben und enden

Läuft es schon, wird das Foto dort geöffnet.</translation>
    </message>
    <message id="crop.button.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="crop.button.done">
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message id="crop.frame">
        <source>Crop frame</source>
        <translation>Zuschneiderahmen</translation>
    </message>
    <message id="crop.ratio.free">
        <source>Free</source>
        <extracomment>A crop box of any shape</extracomment>
        <translation>Frei</translation>
    </message>
    <message id="crop.ratio.original">
        <source>Original</source>
        <extracomment>The image's own ratio</extracomment>
        <translation>Original</translation>
    </message>
    <message id="crop.ratio.square">
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message id="crop.title">
        <source>Crop</source>
        <extracomment>Title of the crop tool</extracomment>
        <translation>Zuschneiden</translation>
    </message>
    <message id="cropscreen.error.memory">
        <source>There is not enough memory to crop this photo.</source>
        <translation>Zum Zuschneiden dieses Fotos fehlt Arbeitsspeicher.</translation>
    </message>
    <message id="eventlog.delete">
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message id="eventlog.empty">
        <source>Nothing has been noted.</source>
        <translation>Es wurde nichts notiert.</translation>
    </message>
    <message id="eventlog.error.delete">
        <source>The log can’t be deleted.</source>
        <translation>Das Protokoll kann nicht gelöscht werden.</translation>
    </message>
    <message id="feedback.error.message">
        <source>Sorry, it looks like your device is not configured for email. You can configure email from the Settings App</source>
        <translation>Auf diesem Gerät ist anscheinend keine E-Mail eingerichtet. Das geht in den Einstellungen des Geräts.</translation>
    </message>
    <message id="feedback.error.title">
        <source>Email not configured</source>
        <translation>E-Mail ist nicht eingerichtet</translation>
    </message>
    <message id="filedialog.folder.title">
        <source>Choose a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message id="filedialog.image.filter">
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message id="filedialog.image.title">
        <source>Choose a photo</source>
        <translation>Foto auswählen</translation>
    </message>
    <message id="generic.access.camera">
        <source>Pelmira can’t use the camera. Allow it in the settings to take photos.</source>
        <translation>Pelmira darf die Kamera nicht benutzen. Erlaube es in den Einstellungen, um Fotos aufzunehmen.</translation>
    </message>
    <message id="generic.access.photos">
        <source>Pelmira can’t get at your pictures folder. Allow it in the settings to pick and save photos.</source>
        <translation>Pelmira kommt nicht an deinen Bilderordner. Erlaube es in den Einstellungen, um Fotos auszuwählen und zu speichern.</translation>
    </message>
    <message id="generic.access.settings">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="generic.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="generic.done">
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message id="generic.home">
        <source>Home</source>
        <extracomment>Leaves the work and goes to the first screen</extracomment>
        <translation>Start</translation>
    </message>
    <message id="generic.no">
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message id="generic.save">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="generic.yes">
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message id="helppage.file">
        <source>help.html</source>
        <extracomment>File of the help page in this language</extracomment>
        <translation>help_de.html</translation>
    </message>
    <message id="homescreen.button.camera">
        <source>Take a photo</source>
        <translation>Foto aufnehmen</translation>
    </message>
    <message id="homescreen.button.opening">
        <source>Opening…</source>
        <translation>Wird geöffnet …</translation>
    </message>
    <message id="homescreen.button.photo">
        <source>Choose a photo</source>
        <translation>Foto auswählen</translation>
    </message>
    <message id="homescreen.drop">
        <source>or drop or paste a picture here</source>
        <translation>oder ein Bild hier ablegen oder einfügen</translation>
    </message>
    <message id="homescreen.error.preferences">
        <source>Settings can’t be written to %1: they hold until Pelmira is closed.</source>
        <extracomment>%1: path of the file</extracomment>
        <translation>In %1 können keine Einstellungen geschrieben werden: Sie gelten, bis Pelmira beendet wird.</translation>
    </message>
    <message id="homescreen.error.workIsElsewhere">
        <source>Pelmira is open elsewhere: unfinished work will not be kept here.</source>
        <extracomment>Another process of the same user has the folder</extracomment>
        <translation>Pelmira ist anderswo offen: Unfertiges wird hier nicht aufbewahrt.</translation>
    </message>
    <message id="homescreen.error.workIsNotKept">
        <source>Nothing can be written to %1: unfinished work will not be kept.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>In %1 kann nichts geschrieben werden: Unfertige Arbeit geht beim Beenden verloren.</translation>
    </message>
    <message id="homescreen.error.workMemory">
        <source>There is not enough memory to go on with your unfinished cut-out. It is kept.</source>
        <translation>Für den unfertigen Freisteller reicht der Speicher nicht. Er bleibt erhalten.</translation>
    </message>
    <message id="homescreen.nothingToPaste">
        <source>There is no picture on the clipboard.</source>
        <translation>In der Zwischenablage ist kein Bild.</translation>
    </message>
    <message id="homescreen.oneAtATime">
        <source>One photo at a time: only %1 is opened.</source>
        <extracomment>%1: name of the file that is opened</extracomment>
        <translation>Ein Foto nach dem anderen: Nur %1 wird geöffnet.</translation>
    </message>
    <message id="homescreen.pasted">
        <source>The pasted picture</source>
        <translation>Das eingefügte Bild</translation>
    </message>
    <message id="homescreen.tagline">
        <source>Tap the background away.
Keep what matters.</source>
        <translation>Hintergrund antippen und weg.
Was zählt, bleibt.</translation>
    </message>
    <message id="intake.error.damaged">
        <source>%1 is damaged or incomplete.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 ist beschädigt oder unvollständig.</translation>
    </message>
    <message id="intake.error.empty">
        <source>%1 is empty.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 ist leer.</translation>
    </message>
    <message id="intake.error.missing">
        <source>%1 was not found.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 wurde nicht gefunden.</translation>
    </message>
    <message id="intake.error.notAFile">
        <source>%1 is not a file.</source>
        <extracomment>%1: name of the folder or device</extracomment>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message id="intake.error.notAnImage">
        <source>%1 is not an image that can be opened here.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 ist kein Bild, das sich hier öffnen lässt.</translation>
    </message>
    <message id="intake.error.tooLarge">
        <source>%1 is too large for the memory of this device.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 ist zu groß für den Speicher dieses Geräts.</translation>
    </message>
    <message id="intake.error.tooLargeForGPU">
        <source>This photo is larger than this device can edit.</source>
        <translation>Dieses Foto ist größer, als dieses Gerät es bearbeiten kann.</translation>
    </message>
    <message id="intake.error.unreadable">
        <source>%1 can’t be read.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message id="mainscreen.bottombar.offset">
        <source>Offset</source>
        <extracomment>How far above the finger the brush draws</extracomment>
        <translation>Abstand</translation>
    </message>
    <message id="mainscreen.bottombar.size">
        <source>Size</source>
        <extracomment>Of the brush</extracomment>
        <translation>Größe</translation>
    </message>
    <message id="mainscreen.bottombar.softness">
        <source>Softness</source>
        <extracomment>Of the brush's edge</extracomment>
        <translation>Weichheit</translation>
    </message>
    <message id="mainscreen.bottombar.tolerance">
        <source>Tolerance</source>
        <extracomment>How far a colour may differ and still be removed</extracomment>
        <translation>Toleranz</translation>
    </message>
    <message id="mainscreen.brush.circle">
        <source>Circle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Kreis</translation>
    </message>
    <message id="mainscreen.brush.square">
        <source>Square</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Quadrat</translation>
    </message>
    <message id="mainscreen.brush.triangle">
        <source>Triangle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Dreieck</translation>
    </message>
    <message id="mainscreen.button.back">
        <source>Start over</source>
        <translation>Von vorn beginnen</translation>
    </message>
    <message id="mainscreen.button.background">
        <source>Next background</source>
        <extracomment>Steps between checker, black and white</extracomment>
        <translation>Nächster Hintergrund</translation>
    </message>
    <message id="mainscreen.button.brush">
        <source>Brush settings</source>
        <translation>Pinsel einstellen</translation>
    </message>
    <message id="mainscreen.button.help">
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message id="mainscreen.button.redMask">
        <source>Show what was removed</source>
        <translation>Entferntes zeigen</translation>
    </message>
    <message id="mainscreen.button.saveCutOut">
        <source>Save the cut-out</source>
        <translation>Freisteller speichern</translation>
    </message>
    <message id="mainscreen.canvas.keys">
        <source>Arrow keys aim, and Enter removes what is there. With a brush, hold the space bar and paint with the arrow keys.</source>
        <translation>Die Pfeiltasten zielen, die Eingabetaste entfernt, was dort ist. Mit einem Pinsel malen die Pfeiltasten bei gehaltener Leertaste.</translation>
    </message>
    <message id="mainscreen.canvas.name">
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message id="mainscreen.caption.brush">
        <source>Brush</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Pinsel</translation>
    </message>
    <message id="mainscreen.caption.erase">
        <source>Erase</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Radieren</translation>
    </message>
    <message id="mainscreen.caption.invert">
        <source>Invert</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Umkehren</translation>
    </message>
    <message id="mainscreen.caption.redMask">
        <source>Mask</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Maske</translation>
    </message>
    <message id="mainscreen.caption.replace">
        <source>Restore</source>
        <extracomment>At most ten letters: the brush that brings erased parts back</extracomment>
        <translation>Ergänzen</translation>
    </message>
    <message id="mainscreen.caption.save">
        <source>Save</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Speichern</translation>
    </message>
    <message id="mainscreen.caption.undo">
        <source>Undo</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message id="mainscreen.caption.wand">
        <source>Wand</source>
        <extracomment>At most ten letters: the magic wand</extracomment>
        <translation>Stab</translation>
    </message>
    <message id="mainscreen.error.graphicsMemory">
        <source>There is not enough graphics memory to show the cut-out. Nothing is lost.</source>
        <translation>Der Grafikspeicher reicht nicht, um den Freisteller zu zeigen. Nichts ist verloren.</translation>
    </message>
    <message id="mainscreen.error.maskNotKept">
        <source>This device doesn't give the cut-out back. What was kept last stays.</source>
        <extracomment>The graphics driver refuses to read the mask, so it can't be kept for the next start</extracomment>
        <translation>Dieses Gerät gibt den Ausschnitt nicht heraus. Was zuletzt gesichert wurde, bleibt erhalten.</translation>
    </message>
    <message id="mainscreen.error.maskNotRead">
        <source>The cut-out so far can’t be read. It stays as it was kept until you change something.</source>
        <translation>Der bisherige Freisteller lässt sich nicht lesen. Er bleibt aufbewahrt, bis etwas geändert wird.</translation>
    </message>
    <message id="mainscreen.error.memory">
        <source>There is not enough memory for the wand. Nothing was changed.</source>
        <translation>Für den Zauberstab reicht der Speicher nicht. Es wurde nichts geändert.</translation>
    </message>
    <message id="mainscreen.notice.saveFailed">
        <source>The picture could not be saved in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Das Bild konnte nicht in %1 gespeichert werden. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="mainscreen.notice.saveNoPermission">
        <source>You are not allowed to save in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Du darfst in %1 nicht speichern. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="mainscreen.notice.saveNoSpace">
        <source>There is no space left in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>In %1 ist kein Platz mehr. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="mainscreen.notice.saveReadOnly">
        <source>%1 is read-only. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>%1 ist schreibgeschützt. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="mainscreen.tooltip.erase">
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message id="mainscreen.tooltip.invertMask">
        <source>Invert</source>
        <extracomment>Swaps what is kept and what is removed</extracomment>
        <translation>Umkehren</translation>
    </message>
    <message id="mainscreen.tooltip.magicWand">
        <source>Magic wand</source>
        <translation>Zauberstab</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOff">
        <source>Red mask off</source>
        <translation>Rote Maske aus</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOn">
        <source>Red mask on</source>
        <translation>Rote Maske an</translation>
    </message>
    <message id="mainscreen.tooltip.replace">
        <source>Restore</source>
        <extracomment>The brush that brings erased parts back</extracomment>
        <translation>Ergänzen</translation>
    </message>
    <message id="mainscreen.tooltip.undo">
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message id="moreapps.close">
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message id="moreapps.download">
        <source>Get</source>
        <extracomment>Leads to the app’s page in the store</extracomment>
        <translation>Holen</translation>
    </message>
    <message id="moreapps.error">
        <source>Something went wrong. Please try again later.</source>
        <translation>Etwas ist schiefgegangen. Bitte versuche es später noch einmal.</translation>
    </message>
    <message id="moreapps.page">
        <source>Page %1 of %2</source>
        <extracomment>%1: number of the page; %2: of how many</extracomment>
        <translation>Seite %1 von %2</translation>
    </message>
    <message id="moreapps.stars">
        <source>%1 of 5 stars</source>
        <extracomment>%1: a number with one decimal</extracomment>
        <translation>%1 von 5 Sternen</translation>
    </message>
    <message id="moreapps.title">
        <source>More apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message id="openrequest.title">
        <source>Open %1?</source>
        <extracomment>Another start of the application wants this file opened; %1: its name</extracomment>
        <translation>%1 öffnen?</translation>
    </message>
    <message id="permission.button.choose">
        <source>Choose another folder</source>
        <translation>Anderen Ordner wählen</translation>
    </message>
    <message id="permission.button.later">
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message id="permission.button.make">
        <source>Make the folder</source>
        <translation>Ordner anlegen</translation>
    </message>
    <message id="permission.limited">
        <source>Your photos can be opened here, but none can be added to this folder.</source>
        <translation>Deine Fotos lassen sich hier öffnen, aber in diesem Ordner kann nichts abgelegt werden.</translation>
    </message>
    <message id="permission.message.denied">
        <source>%1 can’t be read. Choose another folder with your photos.</source>
        <translation>%1 ist nicht lesbar. Wähle einen anderen Ordner mit deinen Fotos.</translation>
    </message>
    <message id="permission.message.make">
        <source>The folder %1 isn’t there yet. Pelmira looks for your photos in it and keeps your cut-outs there.</source>
        <translation>Den Ordner %1 gibt es noch nicht. Pelmira sucht dort deine Fotos und legt deine Freisteller dort ab.</translation>
    </message>
    <message id="permission.title">
        <source>Your photos</source>
        <translation>Deine Fotos</translation>
    </message>
    <message id="photopicker.broken">
        <source>Can’t be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message id="photopicker.browse">
        <source>Browse…</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message id="photopicker.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="photopicker.empty">
        <source>No photos in %1 yet. Browse for one elsewhere.</source>
        <translation>In %1 sind noch keine Fotos. Suche anderswo nach einem.</translation>
    </message>
    <message id="photopicker.scanning">
        <source>Looking for photos…</source>
        <translation>Fotos werden gesucht …</translation>
    </message>
    <message id="photopicker.title">
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message id="resume.message">
        <source>Your last cut-out was not finished.</source>
        <translation>Dein letzter Freisteller ist noch nicht fertig.</translation>
    </message>
    <message id="resume.title">
        <source>Continue where you left off?</source>
        <translation>Dort weitermachen, wo du aufgehört hast?</translation>
    </message>
    <message id="rgbmixer.blue">
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message id="rgbmixer.favourite">
        <source>Keep as favourite</source>
        <translation>Als Favorit behalten</translation>
    </message>
    <message id="rgbmixer.green">
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message id="rgbmixer.red">
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message id="rgbmixer.swatch">
        <source>Favourite colour %1</source>
        <translation>Lieblingsfarbe %1</translation>
    </message>
    <message id="savescreen.button.changeColor">
        <source>Change background colour</source>
        <translation>Hintergrundfarbe ändern</translation>
    </message>
    <message id="savescreen.button.editbackground">
        <source>Edit background</source>
        <translation>Hintergrund bearbeiten</translation>
    </message>
    <message id="savescreen.button.more">
        <source>More apps</source>
        <extracomment>Leads to the maker’s other apps</extracomment>
        <translation>Weitere Apps</translation>
    </message>
    <message id="savescreen.button.other">
        <source>Other app</source>
        <extracomment>Short caption below an icon</extracomment>
        <translation>Andere App</translation>
    </message>
    <message id="savescreen.button.otherJPG">
        <source>Picture with background to another app</source>
        <translation>Bild mit Hintergrund an andere App</translation>
    </message>
    <message id="savescreen.button.otherPNG">
        <source>Transparent picture to another app</source>
        <translation>Transparentes Bild an andere App</translation>
    </message>
    <message id="savescreen.button.rate">
        <source>Rate us</source>
        <extracomment>Leads to the store</extracomment>
        <translation>Bewerten</translation>
    </message>
    <message id="savescreen.button.saveJPG">
        <source>Save with background</source>
        <translation>Mit Hintergrund speichern</translation>
    </message>
    <message id="savescreen.button.savePNG">
        <source>Save transparent</source>
        <translation>Transparent speichern</translation>
    </message>
    <message id="savescreen.error.encode">
        <source>There is not enough memory to save the picture. Your work is still here.</source>
        <translation>Zum Speichern des Bildes fehlt Arbeitsspeicher. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="savescreen.error.render">
        <source>There is not enough memory to prepare the picture. Your work is still here.</source>
        <translation>Zum Vorbereiten des Bildes fehlt Arbeitsspeicher. Deine Arbeit ist noch da.</translation>
    </message>
    <message id="savescreen.error.share">
        <source>The picture could not be handed over: the temporary folder can’t be written.</source>
        <translation>Das Bild konnte nicht weitergegeben werden: Der temporäre Ordner ist nicht beschreibbar.</translation>
    </message>
    <message id="savescreen.edges.label">
        <source>Clean edges</source>
        <translation>Saubere Kanten</translation>
    </message>
    <message id="savescreen.edges.message">
        <source>Soft as in the photo, without the old background</source>
        <translation>Weich wie im Foto, ohne den alten Hintergrund</translation>
    </message>
    <message id="savescreen.heif.message">
        <source>Transparent pictures take much less space. Some older apps can only open PNG.</source>
        <translation>Transparente Bilder brauchen viel weniger Platz. Manche ältere Apps öffnen nur PNG.</translation>
    </message>
    <message id="savescreen.heif.switch.label">
        <source>Use HEIF</source>
        <translation>HEIF verwenden</translation>
    </message>
    <message id="savescreen.heif.title">
        <source>Smaller files with HEIF</source>
        <translation>Kleinere Dateien mit HEIF</translation>
    </message>
    <message id="savescreen.label.custombg">
        <source>Coloured background</source>
        <translation>Farbiger Hintergrund</translation>
    </message>
    <message id="savescreen.label.transparentbg">
        <source>Transparent background</source>
        <translation>Transparenter Hintergrund</translation>
    </message>
    <message id="savescreen.label.whitebg">
        <source>White background</source>
        <translation>Weißer Hintergrund</translation>
    </message>
    <message id="savescreen.problem.chooseFolder">
        <source>Choose another folder…</source>
        <translation>Anderen Ordner wählen …</translation>
    </message>
    <message id="savescreen.problem.discard">
        <source>Don’t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message id="savescreen.problem.title">
        <source>The picture was not saved</source>
        <translation>Das Bild wurde nicht gespeichert</translation>
    </message>
    <message id="savescreen.problem.tryAgain">
        <source>Try again</source>
        <translation>Noch einmal versuchen</translation>
    </message>
    <message id="savescreen.progress.preparing">
        <source>One moment…</source>
        <translation>Einen Moment …</translation>
    </message>
    <message id="savescreen.progress.saving">
        <source>Saving…</source>
        <translation>Wird gespeichert …</translation>
    </message>
    <message id="savescreen.review.later">
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message id="savescreen.review.message">
        <source>A rating helps others to find it.</source>
        <translation>Eine Bewertung hilft anderen, die App zu finden.</translation>
    </message>
    <message id="savescreen.review.rate">
        <source>Rate it</source>
        <translation>Bewerten</translation>
    </message>
    <message id="savescreen.review.title">
        <source>Do you like %1?</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>Gefällt dir %1?</translation>
    </message>
    <message id="savescreen.savedialog.cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="savescreen.savedialog.highres">
        <source>High resolution</source>
        <translation>Hohe Auflösung</translation>
    </message>
    <message id="savescreen.savedialog.lowres">
        <source>Low resolution</source>
        <translation>Niedrige Auflösung</translation>
    </message>
    <message id="savescreen.savedialog.title">
        <source>Save in which resolution?</source>
        <translation>In welcher Auflösung speichern?</translation>
    </message>
    <message id="savescreen.saveprogress.folder">
        <source>Your pictures are in %1</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Deine Bilder liegen in %1</translation>
    </message>
    <message id="savescreen.saveprogress.showFile">
        <source>Show file</source>
        <extracomment>In the file manager</extracomment>
        <translation>Datei zeigen</translation>
    </message>
    <message id="savescreen.saveprogress.success">
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message id="savescreen.share.copied">
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message id="savescreen.share.copy">
        <source>Copy</source>
        <extracomment>The picture, into the clipboard</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="savescreen.share.noApps">
        <source>You don't have any apps installed that can handle images</source>
        <translation>Es ist keine App installiert, die Bilder öffnen kann</translation>
    </message>
    <message id="savescreen.share.openWith">
        <source>Open with…</source>
        <translation>Öffnen mit …</translation>
    </message>
    <message id="settings.consent.message">
        <source>Which formats you save and what you switch on would be noted in a file. It stays on this device, and you can read and delete it.</source>
        <translation>In einer Datei würde notiert, in welchen Formaten du speicherst und was du einschaltest. Sie bleibt auf diesem Gerät, und du kannst sie lesen und löschen.</translation>
    </message>
    <message id="settings.consent.title">
        <source>May a log of use be kept?</source>
        <translation>Darf ein Nutzungsprotokoll geführt werden?</translation>
    </message>
    <message id="settings.error.missing">
        <source>This build of the app doesn’t offer that.</source>
        <translation>Diese Ausgabe der App bietet das nicht an.</translation>
    </message>
    <message id="settings.error.noApps">
        <source>The list of apps isn’t available right now.</source>
        <translation>Die Liste der Apps ist gerade nicht verfügbar.</translation>
    </message>
    <message id="settings.error.open">
        <source>No app was found that can open this.</source>
        <translation>Es wurde keine App gefunden, die das öffnen kann.</translation>
    </message>
    <message id="settings.eventLog.hint">
        <source>Stays on this device. Nothing is sent.</source>
        <extracomment>About the log of use</extracomment>
        <translation>Bleibt auf diesem Gerät. Nichts wird gesendet.</translation>
    </message>
    <message id="settings.eventLog.keep">
        <source>Keep the log of use</source>
        <extracomment>The switch</extracomment>
        <translation>Nutzungsprotokoll führen</translation>
    </message>
    <message id="settings.header.device">
        <source>On this device</source>
        <translation>Auf diesem Gerät</translation>
    </message>
    <message id="settings.header.legal">
        <source>Legal</source>
        <translation>Rechtliches</translation>
    </message>
    <message id="settings.header.support">
        <source>Support Pelmira</source>
        <translation>Pelmira unterstützen</translation>
    </message>
    <message id="settings.row.consent">
        <source>Consent</source>
        <translation>Einwilligung</translation>
    </message>
    <message id="settings.row.eventLog">
        <source>Log of use</source>
        <extracomment>A record of what is used in the app</extracomment>
        <translation>Nutzungsprotokoll</translation>
    </message>
    <message id="settings.row.feedback">
        <source>Send feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message id="settings.row.follow">
        <source>Follow on Instagram</source>
        <translation>Auf Instagram folgen</translation>
    </message>
    <message id="settings.row.moreApps">
        <source>More apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message id="settings.row.privacy">
        <source>Privacy policy</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message id="settings.row.rate">
        <source>Rate Pelmira</source>
        <translation>Pelmira bewerten</translation>
    </message>
    <message id="settings.row.share">
        <source>Share %1</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>%1 empfehlen</translation>
    </message>
    <message id="settings.row.terms">
        <source>Terms of use</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message id="settings.share.copied">
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message id="settings.share.copy">
        <source>Copy the link</source>
        <translation>Link kopieren</translation>
    </message>
    <message id="settings.share.mail">
        <source>Send by email</source>
        <translation>Per E-Mail senden</translation>
    </message>
    <message id="settings.title">
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message id="startover.message">
        <source>Your work on this photo will be lost.</source>
        <translation>Deine Arbeit an diesem Foto geht verloren.</translation>
    </message>
    <message id="startover.title">
        <source>Start over?</source>
        <translation>Von vorn beginnen?</translation>
    </message>
</context>
</TS>
