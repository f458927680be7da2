<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>CD-Brenner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden geprüft …</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Wird gestartet</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>In Arbeit: %@ (%d von %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>„%@“ wird gebrannt</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>Audio-CD</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Brennvorgang wird gestartet</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Brennvorgang wird vorbereitet</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Verbleibende Zeit: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Titel %lu von %lu wird begonnen</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Titel %lu von %lu wird geschrieben</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Titel %lu von %lu wird abgeschlossen</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Sitzung wird abgeschlossen</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Abschluss des Brennvorgangs</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>CD wird überprüft</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Die CD kann jetzt ausgeworfen werden</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>Die CD ist danach möglicherweise unbrauchbar. Möchten Sie wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Belegte Zeit: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Belegter Platz: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Freie Zeit: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Freier Platz: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Zeit überschritten um: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Platz überschritten um: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>Der Speicherplatz reicht nicht aus.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Bitte schließen Sie ein CD-Laufwerk an.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Dieses Laufwerk kann keine CDs brennen.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>CD wird geprüft …</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Titel</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Diese CD ist nicht leer. Bitte legen Sie eine leere CD ein.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Bitte legen Sie eine leere CD ein …</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>Daten-CD</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Musikdateien hierher ziehen</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>Kein CD-Laufwerk gefunden.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>Lauf&amp;werk:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Name der CD:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Auswerfen</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Brennen</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Die CD aus dem Laufwerk auswerfen</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Alles aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Die Liste auf die CD brennen</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>Die Art der CD, die gebrannt wird</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Art der CD</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Brennliste</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Belegter Platz</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Läuft in CD-Spielern und im Auto. Fasst rund 80 Minuten Musik und bis zu 99 Titel, ganz gleich, wie groß die Dateien sind.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Bewahrt Dateien und Ordner für Computer unverändert auf. Fasst rund 700&#xa0;MB.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Was Sie brauchen</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Eine leere CD-R oder CD-RW. Der Balken zeigt, wie voll sie wird; was nicht mehr darauf passt, muss aus der Liste entfernt werden.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>Das Laufwerk wird nicht gefunden?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Prüfen Sie Kabel und Stromversorgung und warten Sie einige Sekunden. Ein Laufwerk, das ein anderes Programm benutzt, steht hier erst zur Verfügung, wenn jenes Programm beendet ist.</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>PB</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>EB</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>Der Teil des Programms, der Musik abspielt, lässt sich nicht laden. Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>„%@“ lässt sich nicht bis zum Ende lesen: Die Datei oder der Datenträger, auf dem sie liegt, ist beschädigt. Nehmen Sie sie aus der Liste, oder ersetzen Sie sie durch eine unbeschädigte Kopie und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>„%@“ ist nicht mehr an seinem Platz. Legen Sie die Datei dorthin zurück, oder nehmen Sie sie aus der Liste.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>„%@“ ist nicht mehr dieselbe Datei wie beim Hinzufügen. Nehmen Sie sie aus der Liste und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>„%@“ ist kürzer als beim Hinzufügen: Die Datei wurde gekürzt oder beschädigt. Nehmen Sie sie aus der Liste, oder ersetzen Sie sie durch eine unbeschädigte Kopie und fügen Sie sie neu hinzu.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>Die Datei enthält keinen Ton.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>Nicht lesbar (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>Es gibt keine solche Datei und keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>Nicht lesbar: Ihnen fehlt die Berechtigung zum Öffnen.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>Eine kopiergeschützte MP4-Datei, die nur das Programm ihres Anbieters abspielen kann.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>Eine kopiergeschützte Windows-Media-Datei, die nur das Programm ihres Anbieters abspielen kann.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>Ein verschlüsseltes Hörbuch von Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>Das ist keine Tondatei, oder ihr Anfang ist beschädigt.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>Die Datei enthält Bilder, aber keinen Ton.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>Die Datei ist abgeschnitten: Das Ende des Titels fehlt.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>Das Tonformat der Datei ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>Für den Ton der Datei gibt es keinen Decoder (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>Der Ton der Datei (%@) lässt sich nicht decodieren.</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>Die Datei ist beschädigt oder abgeschnitten.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>Die Kanäle der Datei (Anzahl: %@) lassen sich nicht zu zweien mischen.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>Es gibt nichts zu brennen: Die Liste ist leer. Fügen Sie zuerst Dateien hinzu.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Auf eine Audio-CD passen höchstens %@ Titel, in der Liste sind es %@. Entfernen Sie einige davon und brennen Sie sie auf eine weitere CD.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>Es ist kein Laufwerk zum Brennen da. Schließen Sie einen CD-Brenner an, oder wählen Sie einen aus.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>Das Laufwerk „%@“ ist nicht mehr angeschlossen. Schließen Sie es wieder an, oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>Es werden noch Dateien zur Liste hinzugefügt. Warten Sie, bis sie geprüft sind, und brennen Sie dann.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>Die Liste wird bereits gebrannt. Warten Sie, bis diese CD fertig ist.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>Das Laufwerk „%@“ ist mit einer anderen CD beschäftigt. Warten Sie, bis es fertig ist.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>Die CD war schon fertig, bevor der Brennvorgang angehalten werden konnte. Sie ist brauchbar.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Etwas Unerwartetes ist schiefgegangen (%@). Versuchen Sie es noch einmal; tritt der Fehler wieder auf, melden Sie ihn bitte.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>Die Liste passt nicht auf die CD: Sie braucht %@, und auf der CD ist Platz für %@. Entfernen Sie etwas aus der Liste, oder legen Sie eine größere CD ein.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>„%@“ ist nicht mehr da. Legen Sie die Datei zurück, oder entfernen Sie sie aus der Liste, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>„%@“ lässt sich nicht lesen (%@). Prüfen Sie die Datei und ihre Zugriffsrechte, oder entfernen Sie sie aus der Liste, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Titel %@, „%@“, ist auf der CD nicht so angekommen, wie er gesendet wurde. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Das Inhaltsverzeichnis ist auf der CD nicht so angekommen, wie es gesendet wurde. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>„%@“ ist auf der CD nicht so angekommen, wie es gesendet wurde. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>Das Laufwerk „%@“ kann keine CDs brennen. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>Im Laufwerk „%@“ liegt keine CD. Legen Sie eine leere CD ein.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>Was im Laufwerk „%@“ liegt, ist keine CD. Legen Sie eine leere CD ein.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>Die CD im Laufwerk „%@“ ist nicht leer. Werfen Sie sie aus und legen Sie eine leere CD ein.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>Die Dateien konnten nicht zu Ende geprüft werden (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>Die CD in „%@“ ist nicht leer. Werfen Sie sie aus und legen Sie eine leere CD ein.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>Die Liste passt nicht auf die CD in „%@“. Entfernen Sie etwas aus der Liste.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>CD-Abbild (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>„%@“ hat eine andere Länge als erwartet. Entfernen Sie die Datei aus der Liste, fügen Sie sie neu hinzu und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>Das CD-Abbild wurde in den Ordner „%@“ geschrieben, konnte aber nicht zum Vergleich zurückgelesen werden. Prüfen Sie den Datenträger, auf dem der Ordner liegt, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>Den Ordner „%@“ für das CD-Abbild gibt es nicht. Legen Sie ihn an, oder wählen Sie ein anderes Laufwerk.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>Das CD-Abbild kann nicht in den Ordner „%@“ geschrieben werden: Er ist schreibgeschützt, oder Sie dürfen ihn nicht ändern. Wählen Sie einen anderen Ordner, oder ändern Sie die Zugriffsrechte.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Im Ordner „%@“ ist nicht genug Platz für das CD-Abbild. Schaffen Sie dort Platz, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>Das CD-Abbild konnte nicht in den Ordner „%@“ geschrieben werden (%@). Prüfen Sie den Datenträger, auf dem der Ordner liegt, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Das CD-Abbild braucht %@, aber es sind nur %@ frei im Ordner „%@“. Schaffen Sie dort Platz, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>Der Inhalt der CD ließ sich nicht anordnen. Entfernen Sie, was Sie zuletzt hinzugefügt haben, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>Die CD konnte ihren Namen nicht erhalten.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>„%@“ ist nicht mehr so wie beim Hinzufügen zur Liste. Entfernen Sie die Datei aus der Liste, fügen Sie sie neu hinzu und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>„%@“ ist nicht mehr da. Legen Sie die Datei zurück, oder entfernen Sie sie aus der Liste.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>Ihnen fehlt die Berechtigung, „%@“ zu lesen. Ändern Sie das, oder entfernen Sie die Datei aus der Liste.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>„%@“ lässt sich nicht lesen (%@). Prüfen Sie den Datenträger oder das Netzwerk, wo die Datei liegt, oder entfernen Sie sie aus der Liste.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>Eine Verknüpfung mit etwas, das nicht da ist.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>Eine Verknüpfung, die auf sich selbst zurückführt.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>Der Pfad ist zu lang. Verschieben Sie es in einen Ordner weiter oben.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>Eine Pipe, ein Socket oder ein Gerät: Darin ist nichts zum Brennen.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>Eine Verknüpfung zurück auf einen Ordner, in dem sie selbst liegt.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>Eine Verknüpfung mit einem Ordner, der hier schon viele Male vorkommt.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>In diesem Ordner sind keine Titel.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>Weder eine Datei noch ein Ordner.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Zu viele ineinander verschachtelte Wiedergabelisten.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>Die Wiedergabeliste nennt keine Dateien.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>Die Wiedergabelisten nennen zu viele Dateien.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>Eine Adresse in einem Netzwerk. Nur Dateien auf diesem Computer können gebrannt werden.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>Die Wiedergabeliste lässt sich nicht lesen (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>Die Datei heißt wie eine Wiedergabeliste, ist aber keine.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>CD-Laufwerke werden gesucht …</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Die CD im Laufwerk „%@“ konnte nicht beschrieben werden. Sie ist nicht mehr brauchbar: Versuchen Sie es mit einer neuen, am besten einer anderen Marke.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>Die Schublade des Laufwerks „%@“ ist offen. Legen Sie eine leere CD ein, schließen Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>Die CD wurde aus dem Laufwerk „%@“ genommen, oder eine andere wurde eingelegt. Legen Sie eine leere CD ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>Das Laufwerk „%@“ wird nicht bereit. Nehmen Sie die CD heraus, reinigen Sie sie oder nehmen Sie eine andere, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>Die CD im Laufwerk „%@“ ist nicht beschreibbar. Legen Sie eine leere CD-R oder CD-RW ein.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>Die CD im Laufwerk „%@“ ist schreibgeschützt. Legen Sie eine andere ein.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>Auf der CD im Laufwerk „%@“ ist weniger Platz, als sie angab. Brennen Sie auf eine CD einer anderen Marke.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>Das Laufwerk „%@“ konnte seinen Laser nicht auf die CD einstellen. Versuchen Sie es mit einer CD einer anderen Marke. Geschieht das bei jeder CD, ist vielleicht die Linse verschmutzt.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>Das Laufwerk „%@“ musste auf Daten warten, und die CD ist unbrauchbar geworden. Schließen Sie andere Programme und versuchen Sie es mit einer neuen CD.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Die CD im Laufwerk „%@“ konnte bei Sektor %@ nicht beschrieben werden. Sie ist nicht mehr brauchbar: Versuchen Sie es mit einer neuen, am besten einer anderen Marke.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>Das Laufwerk „%@“ konnte die CD nicht abschließen. Andere Laufwerke können sie vielleicht nicht lesen: Versuchen Sie es mit einer neuen.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>Die CD im Laufwerk „%@“ konnte nicht gelesen werden. Reinigen Sie sie, oder nehmen Sie eine andere.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>Das Laufwerk „%@“ meldet einen eigenen Defekt. Schalten Sie es aus und wieder ein. Hilft das nicht, verwenden Sie ein anderes.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>Die Verbindung zum Laufwerk „%@“ wurde gestört. Prüfen Sie das Kabel, schließen Sie es direkt an den Computer an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>Das Laufwerk „%@“ weigert sich, so zu schreiben, wie es hier nötig ist. Verwenden Sie ein anderes.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>Die CD lässt sich nicht aus dem Laufwerk „%@“ nehmen: Ein anderes Programm hat es verriegelt.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>Sie dürfen das Laufwerk „%@“ nicht benutzen. Bitten Sie einen Administrator um Zugriff darauf.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>Sie dürfen das Laufwerk „%@“ nicht benutzen: Es gehört der Gruppe „%@“. Bitten Sie einen Administrator, Sie in diese Gruppe aufzunehmen, und melden Sie sich dann neu an.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Ein anderes Programm benutzt das Laufwerk „%@“. Warten Sie, bis es fertig ist, oder schließen Sie es, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Das Programm %@ benutzt das Laufwerk „%@“. Warten Sie, bis es fertig ist, oder schließen Sie es, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>Das Laufwerk „%@“ meldet einen Fehler (%@). Versuchen Sie es erneut; hilft das nicht, verwenden Sie eine andere CD oder ein anderes Laufwerk.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>Das Laufwerk „%@“ wurde getrennt. Schließen Sie es wieder an und beginnen Sie neu mit einer leeren CD.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>Das Laufwerk „%@“ antwortet nicht. Schalten Sie es aus und wieder ein, oder schließen Sie es neu an.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>Das Laufwerk „%@“ ist nicht benutzbar (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Titel %@, „%@“, lässt sich nicht von der CD zurücklesen. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>Die CD wurde geschrieben, konnte aber nicht überprüft werden: Das Laufwerk „%@“ wurde getrennt, antwortet nicht, oder die CD wurde herausgenommen. Prüfen Sie in einem Player oder Computer, ob sie sich lesen lässt.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Das Inhaltsverzeichnis lässt sich nicht von der CD zurücklesen. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>„%@“ lässt sich nicht von der CD zurücklesen. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Die CD im Laufwerk „%@“ wurde beschrieben, ist aber nicht so, wie sie sein sollte. Verlassen Sie sich nicht auf diese CD: Brennen Sie die Liste noch einmal auf eine andere.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>Das Laufwerk „%@“ konnte seine Schublade nicht öffnen. Sorgen Sie dafür, dass nichts im Weg ist, und versuchen Sie es noch einmal.</translation>
    </message>
</context>
</TS>
