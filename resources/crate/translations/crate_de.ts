<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Über Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;Über Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Eine Musikbibliothek mit Werkzeugen.
Freie Software unter der GNU General Public License, Version 2 oder neuer.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>&amp;Musikordner wählen …</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Erneut nach Titeln suchen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Titel suchen</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>An %1 senden</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Die ausgewählten Titel zur Liste von %1 hinzufügen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Titel suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Titel werden gesucht</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Titel werden gesucht …</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Musikordner wählen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Kein Titel passt zu „%1“</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>Durchsucht werden Titel, Interpreten, Alben und Dateinamen.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>Der Musikordner lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Noch keine Titel</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Legen Sie Musik in %1 ab, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>Es gibt kein Werkzeug namens „%1“.</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>Es gibt kein Werkzeug, dem die Dateien übergeben werden könnten.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>Das Werkzeug hat die Titel nicht angenommen.</translation>
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
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>Die Datei ist kein Plug-in.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>Das Plug-in gehört zu einem anderen Programm.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>Das Werkzeug ist für eine andere Version von Crate gemacht.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>Das Werkzeug sagt nicht, was es ist.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>Das Werkzeug lässt sich nicht laden: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>Das Plug-in enthält kein Werkzeug, obwohl es das angibt.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Ein anderes Werkzeug hat denselben Namen, „%1“.</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 Titel</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1 Titel ausgewählt</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln Titel</numerusform>
            <numerusform>%Ln Titel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln Titel ausgewählt</numerusform>
            <numerusform>%Ln Titel ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln Stunde</numerusform>
            <numerusform>%Ln Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln Minute</numerusform>
            <numerusform>%Ln Minuten</numerusform>
        </translation>
    </message>
</context>
</TS>
