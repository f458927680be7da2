<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Crate</name>
    <message>
        <source>Crate</source>
        <translation>Crate</translation>
    </message>
    <message>
        <source>Crate %1</source>
        <translation>Crate %1</translation>
    </message>
    <message>
        <source>About Crate</source>
        <translation>Informazioni su Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;Informazioni su Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Una libreria musicale con strumenti.
Software libero con licenza GNU General Public License, versione 2 o successiva.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>&amp;Brani</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>&amp;Scegli la cartella della musica…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Cerca di nuovo i brani</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Trova brani</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Brani</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Apri %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Invia a %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Aggiungi i brani selezionati all’elenco di %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Cerca brani</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Cancella la ricerca</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Ricerca dei brani</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Ricerca dei brani…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Scegli la cartella della musica</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Scegli la cartella…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Nessun brano corrisponde a «%1»</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>Si cerca nei titoli, negli artisti, negli album e nei nomi dei file.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>Impossibile leggere la cartella della musica</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2. Scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Ancora nessun brano</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Mettere della musica in %1 o scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>Non c’è nessuno strumento di nome «%1».</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>Non c’è nessuno strumento a cui passare i file.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>Lo strumento non ha accettato i brani.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Chiudi questo messaggio</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Traccia</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>Il file non è un plug-in.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>Il plug-in appartiene a un altro programma.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>Lo strumento è fatto per un’altra versione di Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>Lo strumento non dice che cos’è.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>Impossibile caricare lo strumento: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>Il plug-in non contiene nessuno strumento, anche se lo dichiara.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Un altro strumento ha lo stesso nome, «%1».</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 brano</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1 brano selezionato</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 giorno</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 ora</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln brano</numerusform>
            <numerusform>%Ln brani</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln brano selezionato</numerusform>
            <numerusform>%Ln brani selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln giorno</numerusform>
            <numerusform>%Ln giorni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln ora</numerusform>
            <numerusform>%Ln ore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln minuto</numerusform>
            <numerusform>%Ln minuti</numerusform>
        </translation>
    </message>
</context>
</TS>
