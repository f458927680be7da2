<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>Masterizzatore CD</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Controllo dei file…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>Elaborazione: %@ (%d di %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>Masterizzazione di «%@»</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD audio</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Avvio della masterizzazione</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Preparazione della masterizzazione</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Tempo rimanente: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Apertura della traccia %lu di %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Scrittura della traccia %lu di %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Chiusura della traccia %lu di %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Chiusura della sessione</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Fine della masterizzazione</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>Verifica del CD</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Ora è possibile espellere il CD</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>Il CD potrebbe non essere più utilizzabile. Annullare davvero?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Durata utilizzata: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Spazio utilizzato: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Durata disponibile: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Spazio disponibile: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Durata in eccesso: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Spazio in eccesso: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>Lo spazio di archiviazione non è sufficiente.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Collegare un’unità CD.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Questa unità non può masterizzare CD.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>Controllo del CD…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Questo CD non è vuoto. Inserirne uno vuoto.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Inserire un CD vuoto…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD dati</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Trascinare qui i file musicali</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Rimuovi dall’elenco</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>Nessuna unità CD trovata.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;Unità:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Nome del CD:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Espelli</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Svuota elenco</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Masterizza</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Espelle il CD dall’unità</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Rimuove tutto dall’elenco</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Masterizza l’elenco sul CD</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>Il tipo di CD da masterizzare</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Tipo di CD</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Elenco da masterizzare</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Capacità utilizzata</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Si ascolta nei lettori CD e in auto. Contiene circa 80 minuti di musica e fino a 99 brani, qualunque sia la dimensione dei file.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Conserva file e cartelle per i computer, così come sono. Contiene circa 700&#xa0;MB.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Che cosa serve</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Un CD-R o CD-RW vuoto. La barra mostra quanto verrà riempito; ciò che non ci sta va tolto dall’elenco.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>L’unità non viene trovata?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Controllare il cavo e l’alimentazione, poi attendere qualche secondo. Un’unità usata da un altro programma non è disponibile qui finché quel programma non viene chiuso.</translation>
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
        <translation>byte</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>Impossibile caricare la parte del programma che riproduce i brani. Installare di nuovo il programma.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>Impossibile leggere «%@» fino alla fine: il file, o il disco su cui si trova, è danneggiato. Toglierlo dall’elenco, oppure sostituirlo con una copia integra e aggiungerlo di nuovo.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>«%@» non è più al suo posto. Rimettervi il file o toglierlo dall’elenco.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>«%@» non è più lo stesso file di quando è stato aggiunto. Toglierlo dall’elenco e aggiungerlo di nuovo.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>«%@» è più corto di quando è stato aggiunto: il file è stato troncato o danneggiato. Toglierlo dall’elenco, oppure sostituirlo con una copia integra e aggiungerlo di nuovo.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>Non contiene audio.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>Impossibile leggerlo (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>Il file o la cartella non esiste.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>Impossibile leggerlo: non si dispone dell’autorizzazione per aprirlo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>È un file MP4 protetto da copia, che solo il lettore del suo negozio può riprodurre.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>È un file Windows Media protetto da copia, che solo il lettore del suo negozio può riprodurre.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>È un audiolibro cifrato di Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>È vuoto.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>Non è un file audio, o il suo inizio è danneggiato.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La memoria non è sufficiente.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>Contiene immagini, ma nessun audio.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>È troncato: manca la fine del brano.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>Il suo audio è in un formato sconosciuto.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>Nessun decodificatore disponibile per il suo audio (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>Impossibile decodificare il suo audio (%@).</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>È danneggiato o troncato.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>I suoi canali (in tutto %@) non possono essere ridotti a due.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>Non c’è nulla da masterizzare: l’elenco è vuoto. Aggiungere prima dei file.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Un CD audio contiene al massimo %@ brani e l’elenco ne ha %@. Toglierne alcuni e masterizzarli su un altro CD.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>Nessuna unità disponibile per la masterizzazione. Collegare un masterizzatore CD o sceglierne uno.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>L’unità «%@» non è più collegata. Ricollegarla o sceglierne un’altra.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>È ancora in corso l’aggiunta di file all’elenco. Attendere che siano stati controllati, poi masterizzare.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>L’elenco è già in fase di masterizzazione. Attendere che il CD sia terminato.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>L’unità «%@» è occupata con un altro CD. Attendere che abbia terminato.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>Il CD è stato completato prima che fosse possibile interrompere la masterizzazione. Può essere usato.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Si è verificato un errore imprevisto (%@). Riprovare; se succede ancora, segnalarlo.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>L’elenco non sta sul CD: richiede %@ e sul CD c’è spazio per %@. Togliere qualcosa dall’elenco o inserire un CD più capiente.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>«%@» non c’è più. Rimettere il file al suo posto o toglierlo dall’elenco, poi riprovare.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>Impossibile leggere «%@» (%@). Controllare il file e i suoi permessi o toglierlo dall’elenco, poi riprovare.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La traccia %@, «%@», non è sul CD così come è stata inviata. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>L’indice del CD non è così come è stato inviato. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«%@» non è sul CD così come è stato inviato. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>L’unità «%@» non può masterizzare CD. Sceglierne un’altra.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>Nessun disco nell’unità «%@». Inserire un CD vuoto.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>Il disco nell’unità «%@» non è un CD. Inserire un CD vuoto.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>Il disco nell’unità «%@» non è vuoto. Espellerlo e inserire un CD vuoto.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>Impossibile completare il controllo dei file (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>Il disco in «%@» non è vuoto. Espellerlo e inserire un disco vuoto.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>L’elenco non sta sul disco in «%@». Togliere qualcosa dall’elenco.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>Immagine disco (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>«%@» non ha la lunghezza prevista. Togliere il file dall’elenco, aggiungerlo di nuovo e ricominciare.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>L’immagine disco è stata scritta nella cartella «%@», ma non è stato possibile rileggerla per confrontarla. Controllare il dispositivo su cui si trova la cartella, poi riprovare.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>La cartella «%@» per l’immagine disco non esiste. Crearla o scegliere un’altra unità.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>Impossibile scrivere l’immagine disco nella cartella «%@»: è di sola lettura o non si dispone dell’autorizzazione per modificarla. Scegliere un’altra cartella o cambiarne i permessi.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Spazio insufficiente per l’immagine disco nella cartella «%@». Liberare spazio o scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>Impossibile scrivere l’immagine disco nella cartella «%@» (%@). Controllare il dispositivo su cui si trova la cartella, poi riprovare.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>L’immagine disco richiede %@, ma ci sono solo %@ liberi nella cartella «%@». Liberare spazio o scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>Impossibile disporre il contenuto del CD. Togliere ciò che è stato aggiunto per ultimo e riprovare.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>Impossibile assegnare il nome al CD.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>«%@» non è più uguale a quando è stato aggiunto all’elenco. Togliere il file dall’elenco, aggiungerlo di nuovo e ricominciare.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>«%@» non c’è più. Rimettere il file al suo posto o toglierlo dall’elenco.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>Non si dispone dell’autorizzazione per leggere «%@». Modificarla o togliere il file dall’elenco.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>Impossibile leggere «%@» (%@). Controllare il disco o la rete su cui si trova, o toglierlo dall’elenco.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>È un collegamento a qualcosa che non esiste.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>È un collegamento che riporta a sé stesso.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>Il suo percorso è troppo lungo. Spostarlo in una cartella di livello superiore.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>È una pipe, un socket o un dispositivo e non contiene nulla da masterizzare.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>È un collegamento a una cartella in cui si trova esso stesso.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>È un collegamento a una cartella già presente qui molte volte.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>In questa cartella non ci sono brani.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>Non è né un file né una cartella.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Troppe playlist una dentro l’altra.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>La playlist non indica alcun file.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>Le playlist indicano troppi file.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>È un indirizzo di rete. È possibile masterizzare solo file di questo computer.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>Impossibile leggere la playlist (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>Il file ha il nome di una playlist, ma non lo è.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>Ricerca delle unità CD…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Impossibile scrivere il disco nell’unità «%@». Non è più utilizzabile: riprovare con un disco nuovo, meglio se di un’altra marca.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>Il vassoio dell’unità «%@» è aperto. Inserire un CD vuoto, chiuderlo e riprovare.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>Il disco è stato tolto dall’unità «%@», oppure ne è stato inserito un altro. Inserire un CD vuoto e riprovare.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>L’unità «%@» non diventa pronta. Togliere il disco, pulirlo o prenderne un altro, e riprovare.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>Il disco nell’unità «%@» non è registrabile. Inserire un CD-R o CD-RW vuoto.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>Il disco nell’unità «%@» è protetto da scrittura. Inserirne un altro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>Il disco nell’unità «%@» ha meno spazio di quanto dichiarato. Usare un disco di un’altra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>L’unità «%@» non ha potuto regolare il laser sul disco. Provare un disco di un’altra marca. Se succede con ogni disco, la lente potrebbe essere sporca.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>L’unità «%@» ha dovuto attendere i dati e il disco è rovinato. Chiudere gli altri programmi e riprovare con un disco nuovo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Impossibile scrivere il disco nell’unità «%@» al settore %@. Non è più utilizzabile: riprovare con un disco nuovo, meglio se di un’altra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>L’unità «%@» non ha potuto chiudere il disco. Altre unità potrebbero non leggerlo: riprovare con un disco nuovo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>Impossibile leggere il disco nell’unità «%@». Pulirlo o prenderne un altro.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>L’unità «%@» segnala un proprio guasto. Spegnerla e riaccenderla. Se non basta, usarne un’altra.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>La connessione con l’unità «%@» è stata disturbata. Controllare il cavo, collegarla direttamente al computer e riprovare.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>L’unità «%@» rifiuta di scrivere nel modo necessario qui. Usare un’altra unità.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>Il disco non può essere tolto dall’unità «%@»: un altro programma l’ha bloccata.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>Non si è autorizzati a usare l’unità «%@». Chiedere l’accesso a un amministratore.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>Non si è autorizzati a usare l’unità «%@»: appartiene al gruppo «%@». Chiedere a un amministratore di essere aggiunti a questo gruppo, poi accedere di nuovo.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Un altro programma sta usando l’unità «%@». Attendere che abbia terminato o chiuderlo, poi riprovare.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Il programma %@ sta usando l’unità «%@». Attendere che abbia terminato o chiuderlo, poi riprovare.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>L’unità «%@» segnala un errore (%@). Riprovare; se non basta, usare un altro disco o un’altra unità.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>L’unità «%@» è stata scollegata. Ricollegarla e ricominciare con un CD vuoto.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>L’unità «%@» non risponde. Spegnerla e riaccenderla, oppure ricollegarla.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>Impossibile usare l’unità «%@» (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La traccia %@, «%@», non può essere riletta dal CD. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>Il CD è stato scritto, ma non è stato possibile verificarlo: l’unità «%@» è stata scollegata, non risponde o è rimasta senza disco. Controllare con un lettore o un computer se è leggibile.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>L’indice del CD non può essere riletto. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«%@» non può essere riletto dal CD. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Il CD nell’unità «%@» è stato scritto, ma non è come dovrebbe essere. Non fare affidamento su questo CD: masterizzare di nuovo l’elenco su un altro.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>L’unità «%@» non è riuscita ad aprire il cassetto. Verificare che nulla lo ostacoli e riprovare.</translation>
    </message>
</context>
</TS>
