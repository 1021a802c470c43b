<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="backgroundeditscreen.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="backgroundeditscreen.canvas">
        <source>Canvas</source>
        <translation>Canvas</translation>
    </message>
    <message id="backgroundeditscreen.closePanel">
        <source>Close panel</source>
        <translation>Close panel</translation>
    </message>
    <message id="backgroundeditscreen.color">
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message id="backgroundeditscreen.mixer">
        <source>Mix the colour</source>
        <translation>Mix the colour</translation>
    </message>
    <message id="backgroundeditscreen.patternpanel.pattern">
        <source>Pattern %1</source>
        <translation>Pattern %1</translation>
    </message>
    <message id="backgroundeditscreen.patterns">
        <source>Patterns</source>
        <translation>Patterns</translation>
    </message>
    <message id="backgroundeditscreen.photo">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.blur">
        <source>Blur</source>
        <translation>Blur</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.choose">
        <source>Choose another photo</source>
        <translation>Choose another photo</translation>
    </message>
    <message id="backgroundeditscreen.photopanel.crop">
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message id="backgroundeditscreen.ratio.a4landscape">
        <source>A4, landscape</source>
        <translation>A4, landscape</translation>
    </message>
    <message id="backgroundeditscreen.ratio.screen">
        <source>Like this screen</source>
        <translation>Like this screen</translation>
    </message>
    <message id="backgroundeditscreen.shadow">
        <source>Shadow</source>
        <translation>Shadow</translation>
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
        <translation>Background</translation>
    </message>
    <message id="backgroundeditscreen.workArea">
        <source>Composition</source>
        <translation>Composition</translation>
    </message>
    <message id="backgroundeditscreen.workArea.keys">
        <source>Arrow keys move the object, plus and minus scale it, brackets turn it, H flips it</source>
        <translation>Arrow keys move the object, plus and minus scale it, brackets turn it, H flips it</translation>
    </message>
    <message id="camera.button.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="camera.button.retry">
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message id="camera.button.shutter">
        <source>Take photo</source>
        <translation>Take photo</translation>
    </message>
    <message id="camera.button.switch">
        <source>Switch camera</source>
        <extracomment>Between the one in front and the one at the back</extracomment>
        <translation>Switch camera</translation>
    </message>
    <message id="camera.error.capture">
        <source>That photo didn’t come out. Please try again.</source>
        <translation>That photo didn’t come out. Please try again.</translation>
    </message>
    <message id="camera.error.failed">
        <source>The camera can’t be used right now. Another program may be using it.</source>
        <translation>The camera can’t be used right now. Another program may be using it.</translation>
    </message>
    <message id="camera.error.none">
        <source>No camera found</source>
        <translation>No camera found</translation>
    </message>
    <message id="camera.error.none.hint">
        <source>Plug one in, or pick a photo from your library.</source>
        <translation>Plug one in, or pick a photo from your library.</translation>
    </message>
    <message id="camera.error.unplugged">
        <source>The camera was disconnected.</source>
        <translation>The camera was disconnected.</translation>
    </message>
    <message id="camera.state.starting">
        <source>Starting the camera…</source>
        <translation>Starting the camera…</translation>
    </message>
    <message id="colorpicker.field">
        <source>Hue and lightness</source>
        <translation>Hue and lightness</translation>
    </message>
    <message id="colorpicker.line">
        <source>Colour strip</source>
        <translation>Colour strip</translation>
    </message>
    <message id="colorpicker.saturation">
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message id="colorscreen.title">
        <source>Colour</source>
        <translation>Colour</translation>
    </message>
    <message id="commandline.error.address">
        <source>%1 is not a file on this device.</source>
        <extracomment>What the command line can't open</extracomment>
        <translation>%1 is not a file on this device.</translation>
    </message>
    <message id="commandline.error.display">
        <source>There is no display to open a window on.</source>
        <extracomment>No screen to show a window on</extracomment>
        <translation>There is no display to open a window on.</translation>
    </message>
    <message id="commandline.error.option">
        <source>Unknown option %1. pelmira --help lists them.</source>
        <extracomment>%1: what was typed</extracomment>
        <translation>Unknown option %1. pelmira --help lists them.</translation>
    </message>
    <message id="commandline.help">
        <source>Usage: pelmira [OPTION…] [--] [PHOTO]
Cuts things out of photos. PHOTO is a path or a file:// address.

  -h, --help     print this and end
  -v, --version  print the version and end

If it runs already, the photo is opened there.</source>
        <extracomment>Printed in a terminal; keep the columns</extracomment>
        <translation>Usage: pelmira [OPTION…] [--] [PHOTO]
Cuts things out of photos. PHOTO is a path or a file:// address.

  -h, --help     print this and end
  -v, --version  print the version and end

If it runs already, the photo is opened there.</translation>
    </message>
    <message id="crop.button.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="crop.button.done">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="crop.frame">
        <source>Crop frame</source>
        <translation>Crop frame</translation>
    </message>
    <message id="crop.ratio.free">
        <source>Free</source>
        <extracomment>A crop box of any shape</extracomment>
        <translation>Free</translation>
    </message>
    <message id="crop.ratio.original">
        <source>Original</source>
        <extracomment>The image's own ratio</extracomment>
        <translation>Original</translation>
    </message>
    <message id="crop.ratio.square">
        <source>Square</source>
        <translation>Square</translation>
    </message>
    <message id="crop.title">
        <source>Crop</source>
        <extracomment>Title of the crop tool</extracomment>
        <translation>Crop</translation>
    </message>
    <message id="cropscreen.error.memory">
        <source>There is not enough memory to crop this photo.</source>
        <translation>There is not enough memory to crop this photo.</translation>
    </message>
    <message id="eventlog.delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="eventlog.empty">
        <source>Nothing has been noted.</source>
        <translation>Nothing has been noted.</translation>
    </message>
    <message id="eventlog.error.delete">
        <source>The log can’t be deleted.</source>
        <translation>The log can’t be deleted.</translation>
    </message>
    <message id="feedback.error.message">
        <source>Sorry, it looks like your device is not configured for email. You can configure email from the Settings App</source>
        <translation>Sorry, it looks like your device is not configured for email. You can configure email from the Settings App</translation>
    </message>
    <message id="feedback.error.title">
        <source>Email not configured</source>
        <translation>Email not configured</translation>
    </message>
    <message id="filedialog.folder.title">
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message id="filedialog.image.filter">
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message id="filedialog.image.title">
        <source>Choose a photo</source>
        <translation>Choose a photo</translation>
    </message>
    <message id="generic.access.camera">
        <source>Pelmira can’t use the camera. Allow it in the settings to take photos.</source>
        <translation>Pelmira can’t use the camera. Allow it in the settings to take photos.</translation>
    </message>
    <message id="generic.access.photos">
        <source>Pelmira can’t get at your pictures folder. Allow it in the settings to pick and save photos.</source>
        <translation>Pelmira can’t get at your pictures folder. Allow it in the settings to pick and save photos.</translation>
    </message>
    <message id="generic.access.settings">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="generic.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="generic.done">
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message id="generic.home">
        <source>Home</source>
        <extracomment>Leaves the work and goes to the first screen</extracomment>
        <translation>Home</translation>
    </message>
    <message id="generic.no">
        <source>No</source>
        <translation>No</translation>
    </message>
    <message id="generic.save">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="generic.yes">
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message id="helppage.file">
        <source>help.html</source>
        <extracomment>File of the help page in this language</extracomment>
        <translation>help.html</translation>
    </message>
    <message id="homescreen.button.camera">
        <source>Take a photo</source>
        <translation>Take a photo</translation>
    </message>
    <message id="homescreen.button.opening">
        <source>Opening…</source>
        <translation>Opening…</translation>
    </message>
    <message id="homescreen.button.photo">
        <source>Choose a photo</source>
        <translation>Choose a photo</translation>
    </message>
    <message id="homescreen.drop">
        <source>or drop or paste a picture here</source>
        <translation>or drop or paste a picture here</translation>
    </message>
    <message id="homescreen.error.preferences">
        <source>Settings can’t be written to %1: they hold until Pelmira is closed.</source>
        <extracomment>%1: path of the file</extracomment>
        <translation>Settings can’t be written to %1: they hold until Pelmira is closed.</translation>
    </message>
    <message id="homescreen.error.workIsElsewhere">
        <source>Pelmira is open elsewhere: unfinished work will not be kept here.</source>
        <extracomment>Another process of the same user has the folder</extracomment>
        <translation>Pelmira is open elsewhere: unfinished work will not be kept here.</translation>
    </message>
    <message id="homescreen.error.workIsNotKept">
        <source>Nothing can be written to %1: unfinished work will not be kept.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Nothing can be written to %1: unfinished work will not be kept.</translation>
    </message>
    <message id="homescreen.error.workMemory">
        <source>There is not enough memory to go on with your unfinished cut-out. It is kept.</source>
        <translation>There is not enough memory to go on with your unfinished cut-out. It is kept.</translation>
    </message>
    <message id="homescreen.nothingToPaste">
        <source>There is no picture on the clipboard.</source>
        <translation>There is no picture on the clipboard.</translation>
    </message>
    <message id="homescreen.oneAtATime">
        <source>One photo at a time: only %1 is opened.</source>
        <extracomment>%1: name of the file that is opened</extracomment>
        <translation>One photo at a time: only %1 is opened.</translation>
    </message>
    <message id="homescreen.pasted">
        <source>The pasted picture</source>
        <translation>The pasted picture</translation>
    </message>
    <message id="homescreen.tagline">
        <source>Tap the background away.
Keep what matters.</source>
        <translation>Tap the background away.
Keep what matters.</translation>
    </message>
    <message id="intake.error.damaged">
        <source>%1 is damaged or incomplete.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 is damaged or incomplete.</translation>
    </message>
    <message id="intake.error.empty">
        <source>%1 is empty.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 is empty.</translation>
    </message>
    <message id="intake.error.missing">
        <source>%1 was not found.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 was not found.</translation>
    </message>
    <message id="intake.error.notAFile">
        <source>%1 is not a file.</source>
        <extracomment>%1: name of the folder or device</extracomment>
        <translation>%1 is not a file.</translation>
    </message>
    <message id="intake.error.notAnImage">
        <source>%1 is not an image that can be opened here.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 is not an image that can be opened here.</translation>
    </message>
    <message id="intake.error.tooLarge">
        <source>%1 is too large for the memory of this device.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 is too large for the memory of this device.</translation>
    </message>
    <message id="intake.error.tooLargeForGPU">
        <source>This photo is larger than this device can edit.</source>
        <translation>This photo is larger than this device can edit.</translation>
    </message>
    <message id="intake.error.unreadable">
        <source>%1 can’t be read.</source>
        <extracomment>%1: name of the file</extracomment>
        <translation>%1 can’t be read.</translation>
    </message>
    <message id="mainscreen.bottombar.offset">
        <source>Offset</source>
        <extracomment>How far above the finger the brush draws</extracomment>
        <translation>Offset</translation>
    </message>
    <message id="mainscreen.bottombar.size">
        <source>Size</source>
        <extracomment>Of the brush</extracomment>
        <translation>Size</translation>
    </message>
    <message id="mainscreen.bottombar.softness">
        <source>Softness</source>
        <extracomment>Of the brush's edge</extracomment>
        <translation>Softness</translation>
    </message>
    <message id="mainscreen.bottombar.tolerance">
        <source>Tolerance</source>
        <extracomment>How far a colour may differ and still be removed</extracomment>
        <translation>Tolerance</translation>
    </message>
    <message id="mainscreen.brush.circle">
        <source>Circle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Circle</translation>
    </message>
    <message id="mainscreen.brush.square">
        <source>Square</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Square</translation>
    </message>
    <message id="mainscreen.brush.triangle">
        <source>Triangle</source>
        <extracomment>Shape of the brush</extracomment>
        <translation>Triangle</translation>
    </message>
    <message id="mainscreen.button.back">
        <source>Start over</source>
        <translation>Start over</translation>
    </message>
    <message id="mainscreen.button.background">
        <source>Next background</source>
        <extracomment>Steps between checker, black and white</extracomment>
        <translation>Next background</translation>
    </message>
    <message id="mainscreen.button.brush">
        <source>Brush settings</source>
        <translation>Brush settings</translation>
    </message>
    <message id="mainscreen.button.help">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="mainscreen.button.redMask">
        <source>Show what was removed</source>
        <translation>Show what was removed</translation>
    </message>
    <message id="mainscreen.button.saveCutOut">
        <source>Save the cut-out</source>
        <translation>Save the cut-out</translation>
    </message>
    <message id="mainscreen.canvas.keys">
        <source>Arrow keys aim, and Enter removes what is there. With a brush, hold the space bar and paint with the arrow keys.</source>
        <translation>Arrow keys aim, and Enter removes what is there. With a brush, hold the space bar and paint with the arrow keys.</translation>
    </message>
    <message id="mainscreen.canvas.name">
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message id="mainscreen.caption.brush">
        <source>Brush</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Brush</translation>
    </message>
    <message id="mainscreen.caption.erase">
        <source>Erase</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Erase</translation>
    </message>
    <message id="mainscreen.caption.invert">
        <source>Invert</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Invert</translation>
    </message>
    <message id="mainscreen.caption.redMask">
        <source>Mask</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Mask</translation>
    </message>
    <message id="mainscreen.caption.replace">
        <source>Restore</source>
        <extracomment>At most ten letters: the brush that brings erased parts back</extracomment>
        <translation>Restore</translation>
    </message>
    <message id="mainscreen.caption.save">
        <source>Save</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Save</translation>
    </message>
    <message id="mainscreen.caption.undo">
        <source>Undo</source>
        <extracomment>At most ten letters</extracomment>
        <translation>Undo</translation>
    </message>
    <message id="mainscreen.caption.wand">
        <source>Wand</source>
        <extracomment>At most ten letters: the magic wand</extracomment>
        <translation>Wand</translation>
    </message>
    <message id="mainscreen.error.graphicsMemory">
        <source>There is not enough graphics memory to show the cut-out. Nothing is lost.</source>
        <translation>There is not enough graphics memory to show the cut-out. Nothing is lost.</translation>
    </message>
    <message id="mainscreen.error.maskNotKept">
        <source>This device doesn't give the cut-out back. What was kept last stays.</source>
        <extracomment>The graphics driver refuses to read the mask, so it can't be kept for the next start</extracomment>
        <translation>This device doesn't give the cut-out back. What was kept last stays.</translation>
    </message>
    <message id="mainscreen.error.maskNotRead">
        <source>The cut-out so far can’t be read. It stays as it was kept until you change something.</source>
        <translation>The cut-out so far can’t be read. It stays as it was kept until you change something.</translation>
    </message>
    <message id="mainscreen.error.memory">
        <source>There is not enough memory for the wand. Nothing was changed.</source>
        <translation>There is not enough memory for the wand. Nothing was changed.</translation>
    </message>
    <message id="mainscreen.notice.saveFailed">
        <source>The picture could not be saved in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>The picture could not be saved in %1. Your work is still here.</translation>
    </message>
    <message id="mainscreen.notice.saveNoPermission">
        <source>You are not allowed to save in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>You are not allowed to save in %1. Your work is still here.</translation>
    </message>
    <message id="mainscreen.notice.saveNoSpace">
        <source>There is no space left in %1. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>There is no space left in %1. Your work is still here.</translation>
    </message>
    <message id="mainscreen.notice.saveReadOnly">
        <source>%1 is read-only. Your work is still here.</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>%1 is read-only. Your work is still here.</translation>
    </message>
    <message id="mainscreen.tooltip.erase">
        <source>Erase</source>
        <translation>Erase</translation>
    </message>
    <message id="mainscreen.tooltip.invertMask">
        <source>Invert</source>
        <extracomment>Swaps what is kept and what is removed</extracomment>
        <translation>Invert</translation>
    </message>
    <message id="mainscreen.tooltip.magicWand">
        <source>Magic wand</source>
        <translation>Magic wand</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOff">
        <source>Red mask off</source>
        <translation>Red mask off</translation>
    </message>
    <message id="mainscreen.tooltip.redMaskOn">
        <source>Red mask on</source>
        <translation>Red mask on</translation>
    </message>
    <message id="mainscreen.tooltip.replace">
        <source>Restore</source>
        <extracomment>The brush that brings erased parts back</extracomment>
        <translation>Restore</translation>
    </message>
    <message id="mainscreen.tooltip.undo">
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message id="moreapps.close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="moreapps.download">
        <source>Get</source>
        <extracomment>Leads to the app’s page in the store</extracomment>
        <translation>Get</translation>
    </message>
    <message id="moreapps.error">
        <source>Something went wrong. Please try again later.</source>
        <translation>Something went wrong. Please try again later.</translation>
    </message>
    <message id="moreapps.page">
        <source>Page %1 of %2</source>
        <extracomment>%1: number of the page; %2: of how many</extracomment>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="moreapps.stars">
        <source>%1 of 5 stars</source>
        <extracomment>%1: a number with one decimal</extracomment>
        <translation>%1 of 5 stars</translation>
    </message>
    <message id="moreapps.title">
        <source>More apps</source>
        <translation>More apps</translation>
    </message>
    <message id="openrequest.title">
        <source>Open %1?</source>
        <extracomment>Another start of the application wants this file opened; %1: its name</extracomment>
        <translation>Open %1?</translation>
    </message>
    <message id="permission.button.choose">
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message id="permission.button.later">
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message id="permission.button.make">
        <source>Make the folder</source>
        <translation>Make the folder</translation>
    </message>
    <message id="permission.limited">
        <source>Your photos can be opened here, but none can be added to this folder.</source>
        <translation>Your photos can be opened here, but none can be added to this folder.</translation>
    </message>
    <message id="permission.message.denied">
        <source>%1 can’t be read. Choose another folder with your photos.</source>
        <translation>%1 can’t be read. Choose another folder with your photos.</translation>
    </message>
    <message id="permission.message.make">
        <source>The folder %1 isn’t there yet. Pelmira looks for your photos in it and keeps your cut-outs there.</source>
        <translation>The folder %1 isn’t there yet. Pelmira looks for your photos in it and keeps your cut-outs there.</translation>
    </message>
    <message id="permission.title">
        <source>Your photos</source>
        <translation>Your photos</translation>
    </message>
    <message id="photopicker.broken">
        <source>Can’t be read</source>
        <translation>Can’t be read</translation>
    </message>
    <message id="photopicker.browse">
        <source>Browse…</source>
        <translation>Browse…</translation>
    </message>
    <message id="photopicker.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="photopicker.empty">
        <source>No photos in %1 yet. Browse for one elsewhere.</source>
        <translation>No photos in %1 yet. Browse for one elsewhere.</translation>
    </message>
    <message id="photopicker.scanning">
        <source>Looking for photos…</source>
        <translation>Looking for photos…</translation>
    </message>
    <message id="photopicker.title">
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message id="resume.message">
        <source>Your last cut-out was not finished.</source>
        <translation>Your last cut-out was not finished.</translation>
    </message>
    <message id="resume.title">
        <source>Continue where you left off?</source>
        <translation>Continue where you left off?</translation>
    </message>
    <message id="rgbmixer.blue">
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message id="rgbmixer.favourite">
        <source>Keep as favourite</source>
        <translation>Keep as favourite</translation>
    </message>
    <message id="rgbmixer.green">
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message id="rgbmixer.red">
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message id="rgbmixer.swatch">
        <source>Favourite colour %1</source>
        <translation>Favourite colour %1</translation>
    </message>
    <message id="savescreen.button.changeColor">
        <source>Change background colour</source>
        <translation>Change background colour</translation>
    </message>
    <message id="savescreen.button.editbackground">
        <source>Edit background</source>
        <translation>Edit background</translation>
    </message>
    <message id="savescreen.button.more">
        <source>More apps</source>
        <extracomment>Leads to the maker’s other apps</extracomment>
        <translation>More apps</translation>
    </message>
    <message id="savescreen.button.other">
        <source>Other app</source>
        <extracomment>Short caption below an icon</extracomment>
        <translation>Other app</translation>
    </message>
    <message id="savescreen.button.otherJPG">
        <source>Picture with background to another app</source>
        <translation>Picture with background to another app</translation>
    </message>
    <message id="savescreen.button.otherPNG">
        <source>Transparent picture to another app</source>
        <translation>Transparent picture to another app</translation>
    </message>
    <message id="savescreen.button.rate">
        <source>Rate us</source>
        <extracomment>Leads to the store</extracomment>
        <translation>Rate us</translation>
    </message>
    <message id="savescreen.button.saveJPG">
        <source>Save with background</source>
        <translation>Save with background</translation>
    </message>
    <message id="savescreen.button.savePNG">
        <source>Save transparent</source>
        <translation>Save transparent</translation>
    </message>
    <message id="savescreen.error.encode">
        <source>There is not enough memory to save the picture. Your work is still here.</source>
        <translation>There is not enough memory to save the picture. Your work is still here.</translation>
    </message>
    <message id="savescreen.error.render">
        <source>There is not enough memory to prepare the picture. Your work is still here.</source>
        <translation>There is not enough memory to prepare the picture. Your work is still here.</translation>
    </message>
    <message id="savescreen.error.share">
        <source>The picture could not be handed over: the temporary folder can’t be written.</source>
        <translation>The picture could not be handed over: the temporary folder can’t be written.</translation>
    </message>
    <message id="savescreen.edges.label">
        <source>Clean edges</source>
        <translation>Clean edges</translation>
    </message>
    <message id="savescreen.edges.message">
        <source>Soft as in the photo, without the old background</source>
        <translation>Soft as in the photo, without the old background</translation>
    </message>
    <message id="savescreen.heif.message">
        <source>Transparent pictures take much less space. Some older apps can only open PNG.</source>
        <translation>Transparent pictures take much less space. Some older apps can only open PNG.</translation>
    </message>
    <message id="savescreen.heif.switch.label">
        <source>Use HEIF</source>
        <translation>Use HEIF</translation>
    </message>
    <message id="savescreen.heif.title">
        <source>Smaller files with HEIF</source>
        <translation>Smaller files with HEIF</translation>
    </message>
    <message id="savescreen.label.custombg">
        <source>Coloured background</source>
        <translation>Coloured background</translation>
    </message>
    <message id="savescreen.label.transparentbg">
        <source>Transparent background</source>
        <translation>Transparent background</translation>
    </message>
    <message id="savescreen.label.whitebg">
        <source>White background</source>
        <translation>White background</translation>
    </message>
    <message id="savescreen.problem.chooseFolder">
        <source>Choose another folder…</source>
        <translation>Choose another folder…</translation>
    </message>
    <message id="savescreen.problem.discard">
        <source>Don’t save</source>
        <translation>Don’t save</translation>
    </message>
    <message id="savescreen.problem.title">
        <source>The picture was not saved</source>
        <translation>The picture was not saved</translation>
    </message>
    <message id="savescreen.problem.tryAgain">
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message id="savescreen.progress.preparing">
        <source>One moment…</source>
        <translation>One moment…</translation>
    </message>
    <message id="savescreen.progress.saving">
        <source>Saving…</source>
        <translation>Saving…</translation>
    </message>
    <message id="savescreen.review.later">
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message id="savescreen.review.message">
        <source>A rating helps others to find it.</source>
        <translation>A rating helps others to find it.</translation>
    </message>
    <message id="savescreen.review.rate">
        <source>Rate it</source>
        <translation>Rate it</translation>
    </message>
    <message id="savescreen.review.title">
        <source>Do you like %1?</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>Do you like %1?</translation>
    </message>
    <message id="savescreen.savedialog.cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="savescreen.savedialog.highres">
        <source>High resolution</source>
        <translation>High resolution</translation>
    </message>
    <message id="savescreen.savedialog.lowres">
        <source>Low resolution</source>
        <translation>Low resolution</translation>
    </message>
    <message id="savescreen.savedialog.title">
        <source>Save in which resolution?</source>
        <translation>Save in which resolution?</translation>
    </message>
    <message id="savescreen.saveprogress.folder">
        <source>Your pictures are in %1</source>
        <extracomment>%1: path of the folder</extracomment>
        <translation>Your pictures are in %1</translation>
    </message>
    <message id="savescreen.saveprogress.showFile">
        <source>Show file</source>
        <extracomment>In the file manager</extracomment>
        <translation>Show file</translation>
    </message>
    <message id="savescreen.saveprogress.success">
        <source>Saved</source>
        <translation>Saved</translation>
    </message>
    <message id="savescreen.share.copied">
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message id="savescreen.share.copy">
        <source>Copy</source>
        <extracomment>The picture, into the clipboard</extracomment>
        <translation>Copy</translation>
    </message>
    <message id="savescreen.share.noApps">
        <source>You don't have any apps installed that can handle images</source>
        <translation>You don't have any apps installed that can handle images</translation>
    </message>
    <message id="savescreen.share.openWith">
        <source>Open with…</source>
        <translation>Open with…</translation>
    </message>
    <message id="settings.consent.message">
        <source>Which formats you save and what you switch on would be noted in a file. It stays on this device, and you can read and delete it.</source>
        <translation>Which formats you save and what you switch on would be noted in a file. It stays on this device, and you can read and delete it.</translation>
    </message>
    <message id="settings.consent.title">
        <source>May a log of use be kept?</source>
        <translation>May a log of use be kept?</translation>
    </message>
    <message id="settings.error.missing">
        <source>This build of the app doesn’t offer that.</source>
        <translation>This build of the app doesn’t offer that.</translation>
    </message>
    <message id="settings.error.noApps">
        <source>The list of apps isn’t available right now.</source>
        <translation>The list of apps isn’t available right now.</translation>
    </message>
    <message id="settings.error.open">
        <source>No app was found that can open this.</source>
        <translation>No app was found that can open this.</translation>
    </message>
    <message id="settings.eventLog.hint">
        <source>Stays on this device. Nothing is sent.</source>
        <extracomment>About the log of use</extracomment>
        <translation>Stays on this device. Nothing is sent.</translation>
    </message>
    <message id="settings.eventLog.keep">
        <source>Keep the log of use</source>
        <extracomment>The switch</extracomment>
        <translation>Keep the log of use</translation>
    </message>
    <message id="settings.header.device">
        <source>On this device</source>
        <translation>On this device</translation>
    </message>
    <message id="settings.header.legal">
        <source>Legal</source>
        <translation>Legal</translation>
    </message>
    <message id="settings.header.support">
        <source>Support Pelmira</source>
        <translation>Support Pelmira</translation>
    </message>
    <message id="settings.row.consent">
        <source>Consent</source>
        <translation>Consent</translation>
    </message>
    <message id="settings.row.eventLog">
        <source>Log of use</source>
        <extracomment>A record of what is used in the app</extracomment>
        <translation>Log of use</translation>
    </message>
    <message id="settings.row.feedback">
        <source>Send feedback</source>
        <translation>Send feedback</translation>
    </message>
    <message id="settings.row.follow">
        <source>Follow on Instagram</source>
        <translation>Follow on Instagram</translation>
    </message>
    <message id="settings.row.moreApps">
        <source>More apps</source>
        <translation>More apps</translation>
    </message>
    <message id="settings.row.privacy">
        <source>Privacy policy</source>
        <translation>Privacy policy</translation>
    </message>
    <message id="settings.row.rate">
        <source>Rate Pelmira</source>
        <translation>Rate Pelmira</translation>
    </message>
    <message id="settings.row.share">
        <source>Share %1</source>
        <extracomment>%1: name of the app</extracomment>
        <translation>Share %1</translation>
    </message>
    <message id="settings.row.terms">
        <source>Terms of use</source>
        <translation>Terms of use</translation>
    </message>
    <message id="settings.share.copied">
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message id="settings.share.copy">
        <source>Copy the link</source>
        <translation>Copy the link</translation>
    </message>
    <message id="settings.share.mail">
        <source>Send by email</source>
        <translation>Send by email</translation>
    </message>
    <message id="settings.title">
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message id="startover.message">
        <source>Your work on this photo will be lost.</source>
        <translation>Your work on this photo will be lost.</translation>
    </message>
    <message id="startover.title">
        <source>Start over?</source>
        <translation>Start over?</translation>
    </message>
</context>
</TS>
