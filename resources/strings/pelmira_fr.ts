<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name></name>
    <message id="backgroundeditscreen.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="backgroundeditscreen.canvas">
        <source>Canvas</source>
        <translation>Format</translation>
    </message>
    <message id="backgroundeditscreen.closePanel">
        <source>Close panel</source>
        <translation>Fermer le panneau</translation>
    </message>
    <message id="backgroundeditscreen.color">
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message id="backgroundeditscreen.mixer">
        <source>Mix the colour</source>
        <translation>Mélanger la couleur</translation>
    </message>
    <message id="backgroundeditscreen.patternpanel.pattern">
        <source>Pattern %1</source>
        <translation>Motif %1</translation>
    </message>
    <message id="backgroundeditscreen.patterns">
        <source>Patterns</source>
        <translation>Motifs</translation>
    </message>
    <message id="backgroundeditscreen.photo">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.blur">
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.choose">
        <source>Choose another photo</source>
        <translation>Choisir une autre photo</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.crop">
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message id="backgroundeditscreen.ratio.a4landscape">
        <source>A4, landscape</source>
        <translation>A4, paysage</translation>
    </message>
    <message id="backgroundeditscreen.ratio.screen">
        <source>Like this screen</source>
        <translation>Comme cet écran</translation>
    </message>
    <message id="backgroundeditscreen.shadow">
        <source>Shadow</source>
        <translation>Ombre</translation>
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
        <translation>Arrière-plan</translation>
    </message>
    <message id="backgroundeditscreen.workArea">
        <source>Composition</source>
        <translation>Composition</translation>
    </message>
    <message id="backgroundeditscreen.workArea.keys">
        <source>Arrow keys move the object, plus and minus scale it, brackets turn it, H flips it</source>
        <translation>Les flèches déplacent l'objet, plus et moins l'agrandissent ou le réduisent, les crochets le tournent, H le retourne</translation>
    </message>
    <message id="camera.button.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="camera.button.retry">
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message id="camera.button.shutter">
        <source>Take photo</source>
        <translation>Prendre la photo</translation>
    </message>
    <message id="camera.button.switch">
        <source>Switch camera</source>
        <extracomment>Between the one in front and the one at the back</extracomment>
        <translation>Changer d’appareil photo</translation>
    </message>
    <message id="camera.error.capture">
        <source>That photo didn’t come out. Please try again.</source>
        <translation>La photo n’a pas pu être prise. Veuillez réessayer.</translation>
    </message>
    <message id="camera.error.failed">
        <source>The camera can’t be used right now. Another program may be using it.</source>
        <translation>L’appareil photo est inutilisable pour le moment. Un autre programme l’utilise peut-être.</translation>
    </message>
    <message id="camera.error.none">
        <source>No camera found</source>
        <translation>Aucun appareil photo trouvé</translation>
    </message>
    <message id="camera.error.none.hint">
        <source>Plug one in, or pick a photo from your library.</source>
        <translation>Branchez-en un ou choisissez une photo parmi vos images.</translation>
    </message>
    <message id="camera.error.unplugged">
        <source>The camera was disconnected.</source>
        <translation>L’appareil photo a été débranché.</translation>
    </message>
    <message id="camera.state.starting">
        <source>Starting the camera…</source>
        <translation>Démarrage de l’appareil photo…</translation>
    </message>
    <message id="colorpicker.field">
        <source>Hue and lightness</source>
        <translation>Teinte et luminosité</translation>
    </message>
    <message id="colorpicker.line">
        <source>Colour strip</source>
        <translation>Bande de couleurs</translation>
    </message>
    <message id="colorpicker.saturation">
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message id="colorscreen.title">
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message id="commandline.error.address">
        <source>%1 is not a file on this device.</source>
        <extracomment>What the command line can't open</extracomment>
        <translation>%1 n’est pas un fichier de cet appareil.</translation>
    </message>
    <message id="commandline.error.display">
        <source>There is no display to open a window on.</source>
        <extracomment>No screen to show a window on</extracomment>
        <translation>Aucun écran où ouvrir une fenêtre.</translation>
    </message>
    <message id="commandline.error.option">
        <source>Unknown option %1. pelmira --help lists them.</source>
        <extracomment>%1: what was typed</extracomment>
        <translation>Option inconnue : %1. pelmira --help les énumère.</translation>
    </message>
    <message id="commandline.help">
        <source>Usage: pelmira [OPTION…] [--] [PHOTO]
Cuts things out of photos. PHOTO is a path or a file:// address.

  -h, --help     print this and end
  -v, --version  print the version and end

If it runs already, the photo is opened there.</source>
        <extracomment>Printed in a terminal; keep the columns</extracomment>
        <translation>Utilisation : pelmira [OPTION…] [--] [PHOTO]
Détoure des objets dans des photos. PHOTO est un chemin ou une adresse file://.

  -h, --help     afficher ceci et terminer
  -v, --version  afficher la version et terminer

S’il est déjà lancé, la photo s’y ouvre.</translation>
    </message>
    <message id="crop.button.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="crop.button.done">
        <source>Done</source>
        <translation>OK</translation>
    </message>
    <message id="crop.frame">
        <source>Crop frame</source>
        <translation>Cadre de recadrage</translation>
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
        <translation>Carré</translation>
    </message>
    <message id="crop.title">
        <source>Crop</source>
        <extracomment>Title of the crop tool</extracomment>
        <translation>Recadrer</translation>
    </message>
    <message id="cropscreen.error.memory">
        <source>There is not enough memory to crop this photo.</source>
        <translation>La mémoire ne suffit pas pour recadrer cette photo.</translation>
    </message>
    <message id="eventlog.delete">
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message id="eventlog.empty">
        <source>Nothing has been noted.</source>
        <translation>Rien n’a été noté.</translation>
    </message>
    <message id="eventlog.error.delete">
        <source>The log can’t be deleted.</source>
        <translation>Le journal ne peut pas être supprimé.</translation>
    </message>
    <message id="feedback.error.message">
        <source>Sorry, it looks like your device is not configured for email. You can configure email from the Settings App</source>
        <translation>Il semble que la messagerie ne soit pas configurée sur cet appareil. Vous pouvez le faire dans les réglages de l’appareil.</translation>
    </message>
    <message id="feedback.error.title">
        <source>Email not configured</source>
        <translation>Messagerie non configurée</translation>
    </message>
    <message id="filedialog.folder.title">
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message id="filedialog.image.filter">
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message id="filedialog.image.title">
        <source>Choose a photo</source>
        <translation>Choisir une photo</translation>
    </message>
    <message id="generic.access.camera">
        <source>Pelmira can’t use the camera. Allow it in the settings to take photos.</source>
        <translation>Pelmira ne peut pas utiliser l’appareil photo. Autorisez-le dans les réglages pour prendre des photos.</translation>
    </message>
    <message id="generic.access.photos">
        <source>Pelmira can’t get at your pictures folder. Allow it in the settings to pick and save photos.</source>
        <translation>Pelmira n’a pas accès à votre dossier Images. Autorisez-le dans les réglages pour choisir et enregistrer des photos.</translation>
    </message>
    <message id="generic.access.settings">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="generic.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="generic.done">
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message id="generic.home">
        <source>Home</source>
        <extracomment>Leaves the work and goes to the first screen</extracomment>
        <translation>Accueil</translation>
    </message>
    <message id="generic.no">
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message id="generic.save">
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message id="generic.yes">
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message id="helppage.file">
        <source>help.html</source>
        <extracomment>File of the help page in this language</extracomment>
        <translation>help_fr.html</translation>
    </message>
    <message id="homescreen.button.camera">
        <source>Take a photo</source>
        <translation>Prendre une photo</translation>
    </message>
    <message id="homescreen.button.opening">
        <source>Opening…</source>
        <translation>Ouverture…</translation>
    </message>
    <message id="homescreen.button.photo">
        <source>Choose a photo</source>
        <translation>Choisir une photo</translation>
    </message>
    <message id="homescreen.drop">
        <source>or drop or paste a picture here</source>
        <translation>ou déposez ou collez une image ici</translation>
    </message>
    <message id="homescreen.error.preferences">
        <source>Settings can’t be written to %1: they hold until Pelmira is closed.</source>
        <extracomment>%1: path of the file</extracomment>
        <translation>Impossible d’écrire les réglages dans %1 : ils valent jusqu’à la fermeture de Pelmira.</translation>
    </message>
    <message id="homescreen.error.workIsElsewhere">
        <source>Pelmira is open elsewhere: unfinished work will not be kept here.</source>
        <extracomment>Another process of the same user has the folder</extracomment>
        <translation>Pelmira est ouvert ailleurs : le travail inachevé ne sera pas conservé ici.</translation>
    </message>
    <message id="homescreen.error.workIsNotKept">
        <source>Nothing can be written to %1: unfinished work will not be kept.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Impossible d’écrire dans %1 : le travail inachevé ne sera pas conservé.</translation>
    </message>
    <message id="homescreen.error.workMemory">
        <source>There is not enough memory to go on with your unfinished cut-out. It is kept.</source>
        <translation>La mémoire ne suffit pas pour reprendre votre détourage inachevé. Il est conservé.</translation>
    </message>
    <message id="homescreen.nothingToPaste">
        <source>There is no picture on the clipboard.</source>
        <translation>Il n’y a pas d’image dans le presse-papiers.</translation>
    </message>
    <message id="homescreen.oneAtATime">
        <source>One photo at a time: only %1 is opened.</source>
        <extracomment>%1: name of the file that is opened</extracomment>
        <translation>Une photo à la fois : seule %1 est ouverte.</translation>
    </message>
    <message id="homescreen.pasted">
        <source>The pasted picture</source>
        <translation>L’image collée</translation>
    </message>
    <message id="homescreen.tagline">
        <source>Tap the background away.
Keep what matters.</source>
        <translation>Touchez le fond, il disparaît.
L’essentiel reste.</translation>
    </message>
    <message id="intake.error.damaged">
        <source>%1 is damaged or incomplete.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 est endommagé ou incomplet.</translation>
    </message>
    <message id="intake.error.empty">
        <source>%1 is empty.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 est vide.</translation>
    </message>
    <message id="intake.error.missing">
        <source>%1 was not found.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 est introuvable.</translation>
    </message>
    <message id="intake.error.notAFile">
        <source>%1 is not a file.</source>
        <extracomment>%1: name of the folder or device</extracomment>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message id="intake.error.notAnImage">
        <source>%1 is not an image that can be opened here.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 n’est pas une image qui peut être ouverte ici.</translation>
    </message>
    <message id="intake.error.tooLarge">
        <source>%1 is too large for the memory of this device.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 est trop grand pour la mémoire de cet appareil.</translation>
    </message>
    <message id="intake.error.tooLargeForGPU">
        <source>This photo is larger than this device can edit.</source>
        <translation>Cette photo est plus grande que ce que cet appareil peut retoucher.</translation>
    </message>
    <message id="intake.error.unreadable">
        <source>%1 can’t be read.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message id="mainscreen.bottombar.offset">
        <source>Offset</source>
        <extracomment>How far above the finger the brush draws</extracomment>
        <translation>Décalage</translation>
    </message>
    <message id="mainscreen.bottombar.size">
        <source>Size</source>
        <extracomment>Of the brush</extracomment>
        <translation>Taille</translation>
    </message>
    <message id="mainscreen.bottombar.softness">
        <source>Softness</source>
        <extracomment>Of the brush's edge</extracomment>
        <translation>Douceur</translation>
    </message>
    <message id="mainscreen.bottombar.tolerance">
        <source>Tolerance</source>
        <extracomment>How far a colour may differ and still be removed</extracomment>
        <translation>Tolérance</translation>
    </message>
    <message id="mainscreen.brush.circle">
        <source>Circle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Cercle</translation>
    </message>
    <message id="mainscreen.brush.square">
        <source>Square</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Carré</translation>
    </message>
    <message id="mainscreen.brush.triangle">
        <source>Triangle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Triangle</translation>
    </message>
    <message id="mainscreen.button.back">
        <source>Start over</source>
        <translation>Recommencer</translation>
    </message>
    <message id="mainscreen.button.background">
        <source>Next background</source>
        <extracomment>Steps between checker, black and white</extracomment>
        <translation>Fond suivant</translation>
    </message>
    <message id="mainscreen.button.brush">
        <source>Brush settings</source>
        <translation>Réglages du pinceau</translation>
    </message>
    <message id="mainscreen.button.help">
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message id="mainscreen.button.redMask">
        <source>Show what was removed</source>
        <translation>Montrer ce qui est effacé</translation>
    </message>
    <message id="mainscreen.button.saveCutOut">
        <source>Save the cut-out</source>
        <translation>Enregistrer le détourage</translation>
    </message>
    <message id="mainscreen.canvas.keys">
        <source>Arrow keys aim, and Enter removes what is there. With a brush, hold the space bar and paint with the arrow keys.</source>
        <translation>Les flèches visent et Entrée retire ce qui s’y trouve. Avec un pinceau, maintenez la barre d’espace et peignez avec les flèches.</translation>
    </message>
    <message id="mainscreen.canvas.name">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="mainscreen.caption.brush">
        <source>Brush</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Pinceau</translation>
    </message>
    <message id="mainscreen.caption.erase">
        <source>Erase</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Effacer</translation>
    </message>
    <message id="mainscreen.caption.invert">
        <source>Invert</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Inverser</translation>
    </message>
    <message id="mainscreen.caption.redMask">
        <source>Mask</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Masque</translation>
    </message>
    <message id="mainscreen.caption.replace">
        <source>Restore</source>
        <extracomment>At most ten letters: the brush that brings erased parts back</extracomment>
        <translation>Restaurer</translation>
    </message>
    <message id="mainscreen.caption.save">
        <source>Save</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Enregistrer</translation>
    </message>
    <message id="mainscreen.caption.undo">
        <source>Undo</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Annuler</translation>
    </message>
    <message id="mainscreen.caption.wand">
        <source>Wand</source>
        <extracomment>At most ten letters: the magic wand</extracomment>
        <translation>Baguette</translation>
    </message>
    <message id="mainscreen.error.graphicsMemory">
        <source>There is not enough graphics memory to show the cut-out. Nothing is lost.</source>
        <translation>La mémoire graphique ne suffit pas pour afficher le détourage. Rien n’est perdu.</translation>
    </message>
    <message id="mainscreen.error.maskNotKept">
        <source>This device doesn't give the cut-out back. What was kept last stays.</source>
        <extracomment>The graphics driver refuses to read the mask, so it can't be kept for the next start</extracomment>
        <translation>Cet appareil ne rend pas le détourage. Le dernier état enregistré est conservé.</translation>
    </message>
    <message id="mainscreen.error.maskNotRead">
        <source>The cut-out so far can’t be read. It stays as it was kept until you change something.</source>
        <translation>Le détourage précédent ne peut pas être lu. Il reste conservé tant que rien n’est modifié.</translation>
    </message>
    <message id="mainscreen.error.memory">
        <source>There is not enough memory for the wand. Nothing was changed.</source>
        <translation>La mémoire ne suffit pas pour la baguette. Rien n’a été modifié.</translation>
    </message>
    <message id="mainscreen.notice.saveFailed">
        <source>The picture could not be saved in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>L’image n’a pas pu être enregistrée dans %1. Votre travail est toujours là.</translation>
    </message>
    <message id="mainscreen.notice.saveNoPermission">
        <source>You are not allowed to save in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Vous n’avez pas le droit d’enregistrer dans %1. Votre travail est toujours là.</translation>
    </message>
    <message id="mainscreen.notice.saveNoSpace">
        <source>There is no space left in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Il n’y a plus de place dans %1. Votre travail est toujours là.</translation>
    </message>
    <message id="mainscreen.notice.saveReadOnly">
        <source>%1 is read-only. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>%1 est en lecture seule. Votre travail est toujours là.</translation>
    </message>
    <message id="mainscreen.tooltip.erase">
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message id="mainscreen.tooltip.invertMask">
        <source>Invert</source>
        <extracomment>Swaps what is kept and what is removed</extracomment>
        <translation>Inverser</translation>
    </message>
    <message id="mainscreen.tooltip.magicWand">
        <source>Magic wand</source>
        <translation>Baguette magique</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOff">
        <source>Red mask off</source>
        <translation>Masque rouge désactivé</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOn">
        <source>Red mask on</source>
        <translation>Masque rouge activé</translation>
    </message>
    <message id="mainscreen.tooltip.replace">
        <source>Restore</source>
        <extracomment>The brush that brings erased parts back</extracomment>
        <translation>Restaurer</translation>
    </message>
    <message id="mainscreen.tooltip.undo">
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message id="moreapps.close">
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message id="moreapps.download">
        <source>Get</source>
        <extracomment>Leads to the app’s page in the store</extracomment>
        <translation>Obtenir</translation>
    </message>
    <message id="moreapps.error">
        <source>Something went wrong. Please try again later.</source>
        <translation>Un problème est survenu. Veuillez réessayer plus tard.</translation>
    </message>
    <message id="moreapps.page">
        <source>Page %1 of %2</source>
        <extracomment>%1: number of the page; %2: of how many</extracomment>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="moreapps.stars">
        <source>%1 of 5 stars</source>
        <extracomment>%1: a number with one decimal</extracomment>
        <translation>%1 étoiles sur 5</translation>
    </message>
    <message id="moreapps.title">
        <source>More apps</source>
        <translation>Plus d’apps</translation>
    </message>
    <message id="openrequest.title">
        <source>Open %1?</source>
        <extracomment>Another start of the application wants this file opened; %1: its name</extracomment>
        <translation>Ouvrir %1 ?</translation>
    </message>
    <message id="permission.button.choose">
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message id="permission.button.later">
        <source>Not now</source>
        <translation>Plus tard</translation>
    </message>
    <message id="permission.button.make">
        <source>Make the folder</source>
        <translation>Créer le dossier</translation>
    </message>
    <message id="permission.limited">
        <source>Your photos can be opened here, but none can be added to this folder.</source>
        <translation>Vos photos peuvent être ouvertes ici, mais aucune ne peut être ajoutée à ce dossier.</translation>
    </message>
    <message id="permission.message.denied">
        <source>%1 can’t be read. Choose another folder with your photos.</source>
        <translation>%1 est illisible. Choisissez un autre dossier contenant vos photos.</translation>
    </message>
    <message id="permission.message.make">
        <source>The folder %1 isn’t there yet. Pelmira looks for your photos in it and keeps your cut-outs there.</source>
        <translation>Le dossier %1 n’existe pas encore. Pelmira y cherche vos photos et y range vos détourages.</translation>
    </message>
    <message id="permission.title">
        <source>Your photos</source>
        <translation>Vos photos</translation>
    </message>
    <message id="photopicker.broken">
        <source>Can’t be read</source>
        <translation>Illisible</translation>
    </message>
    <message id="photopicker.browse">
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message id="photopicker.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="photopicker.empty">
        <source>No photos in %1 yet. Browse for one elsewhere.</source>
        <translation>Aucune photo dans %1. Parcourez vos fichiers pour en trouver une.</translation>
    </message>
    <message id="photopicker.scanning">
        <source>Looking for photos…</source>
        <translation>Recherche de photos…</translation>
    </message>
    <message id="photopicker.title">
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message id="resume.message">
        <source>Your last cut-out was not finished.</source>
        <translation>Votre dernier détourage n’était pas terminé.</translation>
    </message>
    <message id="resume.title">
        <source>Continue where you left off?</source>
        <translation>Reprendre là où vous en étiez ?</translation>
    </message>
    <message id="rgbmixer.blue">
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message id="rgbmixer.favourite">
        <source>Keep as favourite</source>
        <translation>Garder en favori</translation>
    </message>
    <message id="rgbmixer.green">
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message id="rgbmixer.red">
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message id="rgbmixer.swatch">
        <source>Favourite colour %1</source>
        <translation>Couleur favorite %1</translation>
    </message>
    <message id="savescreen.button.changeColor">
        <source>Change background colour</source>
        <translation>Changer la couleur de fond</translation>
    </message>
    <message id="savescreen.button.editbackground">
        <source>Edit background</source>
        <translation>Modifier l'arrière-plan</translation>
    </message>
    <message id="savescreen.button.more">
        <source>More apps</source>
        <extracomment>Leads to the maker’s other apps</extracomment>
        <translation>Plus d’apps</translation>
    </message>
    <message id="savescreen.button.other">
        <source>Other app</source>
        <extracomment>Short caption below an icon</extracomment>
        <translation>Autre app</translation>
    </message>
    <message id="savescreen.button.otherJPG">
        <source>Picture with background to another app</source>
        <translation>Image avec fond vers une autre app</translation>
    </message>
    <message id="savescreen.button.otherPNG">
        <source>Transparent picture to another app</source>
        <translation>Image transparente vers une autre app</translation>
    </message>
    <message id="savescreen.button.rate">
        <source>Rate us</source>
        <extracomment>Leads to the store</extracomment>
        <translation>Noter</translation>
    </message>
    <message id="savescreen.button.saveJPG">
        <source>Save with background</source>
        <translation>Enregistrer avec le fond</translation>
    </message>
    <message id="savescreen.button.savePNG">
        <source>Save transparent</source>
        <translation>Enregistrer avec transparence</translation>
    </message>
    <message id="savescreen.error.encode">
        <source>There is not enough memory to save the picture. Your work is still here.</source>
        <translation>La mémoire ne suffit pas pour enregistrer l’image. Votre travail est toujours là.</translation>
    </message>
    <message id="savescreen.error.render">
        <source>There is not enough memory to prepare the picture. Your work is still here.</source>
        <translation>La mémoire ne suffit pas pour préparer l’image. Votre travail est toujours là.</translation>
    </message>
    <message id="savescreen.error.share">
        <source>The picture could not be handed over: the temporary folder can’t be written.</source>
        <translation>L’image n’a pas pu être transmise : le dossier temporaire n’est pas accessible en écriture.</translation>
    </message>
    <message id="savescreen.edges.label">
        <source>Clean edges</source>
        <translation>Contours nets</translation>
    </message>
    <message id="savescreen.edges.message">
        <source>Soft as in the photo, without the old background</source>
        <translation>Doux comme sur la photo, sans l’ancien arrière-plan</translation>
    </message>
    <message id="savescreen.heif.message">
        <source>Transparent pictures take much less space. Some older apps can only open PNG.</source>
        <translation>Les images transparentes prennent beaucoup moins de place. Certaines anciennes apps n’ouvrent que le PNG.</translation>
    </message>
    <message id="savescreen.heif.switch.label">
        <source>Use HEIF</source>
        <translation>Utiliser HEIF</translation>
    </message>
    <message id="savescreen.heif.title">
        <source>Smaller files with HEIF</source>
        <translation>Fichiers plus légers avec HEIF</translation>
    </message>
    <message id="savescreen.label.custombg">
        <source>Coloured background</source>
        <translation>Fond coloré</translation>
    </message>
    <message id="savescreen.label.transparentbg">
        <source>Transparent background</source>
        <translation>Fond transparent</translation>
    </message>
    <message id="savescreen.label.whitebg">
        <source>White background</source>
        <translation>Fond blanc</translation>
    </message>
    <message id="savescreen.problem.chooseFolder">
        <source>Choose another folder…</source>
        <translation>Choisir un autre dossier…</translation>
    </message>
    <message id="savescreen.problem.discard">
        <source>Don’t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message id="savescreen.problem.title">
        <source>The picture was not saved</source>
        <translation>L’image n’a pas été enregistrée</translation>
    </message>
    <message id="savescreen.problem.tryAgain">
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message id="savescreen.progress.preparing">
        <source>One moment…</source>
        <translation>Un instant…</translation>
    </message>
    <message id="savescreen.progress.saving">
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message id="savescreen.review.later">
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message id="savescreen.review.message">
        <source>A rating helps others to find it.</source>
        <translation>Une note aide d’autres personnes à la trouver.</translation>
    </message>
    <message id="savescreen.review.rate">
        <source>Rate it</source>
        <translation>Noter</translation>
    </message>
    <message id="savescreen.review.title">
        <source>Do you like %1?</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>%1 vous plaît ?</translation>
    </message>
    <message id="savescreen.savedialog.cancel">
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message id="savescreen.savedialog.highres">
        <source>High resolution</source>
        <translation>Haute résolution</translation>
    </message>
    <message id="savescreen.savedialog.lowres">
        <source>Low resolution</source>
        <translation>Basse résolution</translation>
    </message>
    <message id="savescreen.savedialog.title">
        <source>Save in which resolution?</source>
        <translation>Enregistrer en quelle résolution ?</translation>
    </message>
    <message id="savescreen.saveprogress.folder">
        <source>Your pictures are in %1</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Vos images sont dans %1</translation>
    </message>
    <message id="savescreen.saveprogress.showFile">
        <source>Show file</source>
        <extracomment>In the file manager</extracomment>
        <translation>Afficher le fichier</translation>
    </message>
    <message id="savescreen.saveprogress.success">
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message id="savescreen.share.copied">
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message id="savescreen.share.copy">
        <source>Copy</source>
        <extracomment>The picture, into the clipboard</extracomment>
        <translation>Copier</translation>
    </message>
    <message id="savescreen.share.noApps">
        <source>You don't have any apps installed that can handle images</source>
        <translation>Aucune app installée ne peut ouvrir des images</translation>
    </message>
    <message id="savescreen.share.openWith">
        <source>Open with…</source>
        <translation>Ouvrir avec…</translation>
    </message>
    <message id="settings.consent.message">
        <source>Which formats you save and what you switch on would be noted in a file. It stays on this device, and you can read and delete it.</source>
        <translation>Les formats que vous enregistrez et ce que vous activez seraient notés dans un fichier. Il reste sur cet appareil, et vous pouvez le lire et le supprimer.</translation>
    </message>
    <message id="settings.consent.title">
        <source>May a log of use be kept?</source>
        <translation>Un journal d’utilisation peut-il être tenu ?</translation>
    </message>
    <message id="settings.error.missing">
        <source>This build of the app doesn’t offer that.</source>
        <translation>Cette version de l’app ne le propose pas.</translation>
    </message>
    <message id="settings.error.noApps">
        <source>The list of apps isn’t available right now.</source>
        <translation>La liste des apps n’est pas disponible pour le moment.</translation>
    </message>
    <message id="settings.error.open">
        <source>No app was found that can open this.</source>
        <translation>Aucune app capable d’ouvrir ceci n’a été trouvée.</translation>
    </message>
    <message id="settings.eventLog.hint">
        <source>Stays on this device. Nothing is sent.</source>
        <extracomment>About the log of use</extracomment>
        <translation>Reste sur cet appareil. Rien n’est envoyé.</translation>
    </message>
    <message id="settings.eventLog.keep">
        <source>Keep the log of use</source>
        <extracomment>The switch</extracomment>
        <translation>Tenir le journal d’utilisation</translation>
    </message>
    <message id="settings.header.device">
        <source>On this device</source>
        <translation>Sur cet appareil</translation>
    </message>
    <message id="settings.header.legal">
        <source>Legal</source>
        <translation>Informations légales</translation>
    </message>
    <message id="settings.header.support">
        <source>Support Pelmira</source>
        <translation>Soutenir Pelmira</translation>
    </message>
    <message id="settings.row.consent">
        <source>Consent</source>
        <translation>Consentement</translation>
    </message>
    <message id="settings.row.eventLog">
        <source>Log of use</source>
        <extracomment>A record of what is used in the app</extracomment>
        <translation>Journal d’utilisation</translation>
    </message>
    <message id="settings.row.feedback">
        <source>Send feedback</source>
        <translation>Envoyer un commentaire</translation>
    </message>
    <message id="settings.row.follow">
        <source>Follow on Instagram</source>
        <translation>Suivre sur Instagram</translation>
    </message>
    <message id="settings.row.moreApps">
        <source>More apps</source>
        <translation>Plus d’apps</translation>
    </message>
    <message id="settings.row.privacy">
        <source>Privacy policy</source>
        <translation>Politique de confidentialité</translation>
    </message>
    <message id="settings.row.rate">
        <source>Rate Pelmira</source>
        <translation>Noter Pelmira</translation>
    </message>
    <message id="settings.row.share">
        <source>Share %1</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>Partager %1</translation>
    </message>
    <message id="settings.row.terms">
        <source>Terms of use</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message id="settings.share.copied">
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message id="settings.share.copy">
        <source>Copy the link</source>
        <translation>Copier le lien</translation>
    </message>
    <message id="settings.share.mail">
        <source>Send by email</source>
        <translation>Envoyer par e-mail</translation>
    </message>
    <message id="settings.title">
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message id="startover.message">
        <source>Your work on this photo will be lost.</source>
        <translation>Votre travail sur cette photo sera perdu.</translation>
    </message>
    <message id="startover.title">
        <source>Start over?</source>
        <translation>Recommencer ?</translation>
    </message>
</context>
</TS>
