<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
        <translation>Acerca de Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;Acerca de Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Una biblioteca de música con herramientas.
Software libre bajo la Licencia Pública General de GNU, versión 2 o posterior.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>&amp;Canciones</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>Elegir la &amp;carpeta de música…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Buscar canciones de nuevo</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Buscar canciones</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar a %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Añadir las canciones seleccionadas a la lista de %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Buscar canciones</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Buscando canciones</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Buscando canciones…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Elegir la carpeta de música</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Ninguna canción coincide con «%1»</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>Se busca en títulos, artistas, álbumes y nombres de archivo.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>No se puede leer la carpeta de música</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Aún no hay canciones</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Ponga música en %1 o elija otra carpeta.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>No hay ninguna herramienta llamada «%1».</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>No hay ninguna herramienta a la que pasar los archivos.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>La herramienta no aceptó las canciones.</translation>
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
        <translation>Cerrar este mensaje</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>El archivo no es un complemento.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>El complemento pertenece a otro programa.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>La herramienta se hizo para otra versión de Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>La herramienta no dice qué es.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>No se puede cargar la herramienta: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>El complemento no contiene ninguna herramienta, aunque dice que sí.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Otra herramienta tiene el mismo nombre, «%1».</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 canción</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1 canción seleccionada</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 día</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 hora</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minuto</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln canción</numerusform>
            <numerusform>%Ln canciones</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln canción seleccionada</numerusform>
            <numerusform>%Ln canciones seleccionadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln día</numerusform>
            <numerusform>%Ln días</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln hora</numerusform>
            <numerusform>%Ln horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln minuto</numerusform>
            <numerusform>%Ln minutos</numerusform>
        </translation>
    </message>
</context>
</TS>
