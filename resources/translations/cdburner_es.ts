<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>Grabador de CD</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Comprobando archivos…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>Procesando: %@ (%d de %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>Grabando «%@»</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD de audio</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Iniciando la grabación</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Preparando la grabación</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Tiempo restante: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Abriendo la pista %lu de %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Escribiendo la pista %lu de %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Cerrando la pista %lu de %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Cerrando la sesión</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Finalización de la grabación</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>Verificando el CD</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Ya puede expulsar el CD</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>Es posible que el CD quede inservible. ¿Seguro que desea cancelar?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Tiempo usado: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Espacio usado: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Tiempo disponible: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Espacio disponible: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Tiempo excedido: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Espacio excedido: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>No hay suficiente espacio de almacenamiento.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Conecte una unidad de CD.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Esta unidad no puede grabar CD.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>Comprobando el CD…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Este CD no está vacío. Inserte uno vacío.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Inserte un CD vacío…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de datos</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Arrastre aquí los archivos de música</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>No se encontró ninguna unidad de CD.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;Unidad:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Nombre del CD:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Expulsar</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vaciar lista</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Expulsar el CD de la unidad</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Quitar todo de la lista</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Grabar la lista en el CD</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>El tipo de CD que se va a grabar</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Tipo de CD</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Lista de grabación</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Capacidad usada</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Se reproduce en reproductores de CD y en el coche. Admite unos 80 minutos de música y hasta 99 canciones, sea cual sea el tamaño de los archivos.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Conserva archivos y carpetas para ordenadores, tal como son. Admite unos 700&#xa0;MB.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Qué necesita</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Un CD-R o CD-RW vacío. La barra muestra cuánto se llenará; lo que no quepa tiene que salir de la lista.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>¿No se encuentra la unidad?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Revise el cable y la alimentación y espere unos segundos. Una unidad que esté usando otro programa no estará disponible aquí hasta que cierre ese programa.</translation>
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
        <translation>bytes</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>No se puede cargar la parte del programa que reproduce canciones. Vuelva a instalar el programa.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>No se puede leer «%@» hasta el final: el archivo, o el disco en el que se encuentra, está dañado. Quítelo de la lista, o sustitúyalo por una copia en buen estado y añádalo de nuevo.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>«%@» ya no está en su sitio. Devuelva allí el archivo o quítelo de la lista.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>«%@» ya no es el mismo archivo que cuando se añadió. Quítelo de la lista y añádalo de nuevo.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>«%@» es más corto que cuando se añadió: el archivo se ha cortado o dañado. Quítelo de la lista, o sustitúyalo por una copia en buen estado y añádalo de nuevo.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>No contiene sonido.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>No se puede leer (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>No existe ese archivo o carpeta.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>No se puede leer: no tiene permiso para abrirlo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>Es un archivo MP4 con protección contra copia, que solo puede reproducir el programa de su tienda.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>Es un archivo de Windows Media con protección contra copia, que solo puede reproducir el programa de su tienda.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>Es un audiolibro cifrado de Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>No es un archivo de sonido, o su comienzo está dañado.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay suficiente memoria.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>Contiene imágenes, pero no sonido.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>Está cortado: falta el final de la canción.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>Su sonido está en un formato desconocido.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>No hay ningún decodificador para su sonido (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>No se puede decodificar su sonido (%@).</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>Está dañado o cortado.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>Sus canales (en total, %@) no se pueden mezclar en dos.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>No hay nada que grabar: la lista está vacía. Añada archivos primero.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Un CD de audio admite %@ canciones como máximo y la lista tiene %@. Quite algunas y grábelas en otro CD.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>No hay ninguna unidad con la que grabar. Conecte un grabador de CD o elija uno.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>La unidad «%@» ya no está conectada. Conéctela de nuevo o elija otra.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>Todavía se están añadiendo archivos a la lista. Espere a que se comprueben y grabe después.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>La lista ya se está grabando. Espere a que termine ese CD.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>La unidad «%@» está ocupada con otro CD. Espere a que termine.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>El CD se completó antes de que se pudiera detener la grabación. Se puede usar.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Se produjo un error inesperado (%@). Inténtelo de nuevo; si vuelve a ocurrir, comuníquelo.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>La lista no cabe en el CD: necesita %@ y en el CD hay espacio para %@. Quite algo de la lista o inserte un CD de mayor capacidad.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>«%@» ya no está. Devuelva el archivo a su sitio o quítelo de la lista e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>No se puede leer «%@» (%@). Revise el archivo y sus permisos, o quítelo de la lista, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La pista %@, «%@», no está en el CD tal como se envió. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La tabla de contenidos del CD no está tal como se envió. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«%@» no está en el CD tal como se envió. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>La unidad «%@» no puede grabar CD. Elija otra.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>No hay ningún disco en la unidad «%@». Inserte un CD vacío.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>El disco de la unidad «%@» no es un CD. Inserte un CD vacío.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>El disco de la unidad «%@» no está vacío. Expúlselo e inserte un CD vacío.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>No se pudieron comprobar los archivos hasta el final (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>El disco de «%@» no está vacío. Expúlselo e inserte un disco vacío.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>La lista no cabe en el disco de «%@». Quite algo de la lista.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>Imagen de disco (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>«%@» no tiene la longitud esperada. Quite el archivo de la lista, añádalo de nuevo y vuelva a empezar.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>La imagen de disco se escribió en la carpeta «%@», pero no se pudo volver a leer para compararla. Revise el dispositivo en el que está la carpeta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>La carpeta «%@» para la imagen de disco no existe. Créela o elija otra unidad.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>No se puede escribir la imagen de disco en la carpeta «%@»: es de solo lectura o usted no tiene permiso para modificarla. Elija otra carpeta o cambie sus permisos.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>No hay suficiente espacio para la imagen de disco en la carpeta «%@». Libere espacio en ella o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>No se pudo escribir la imagen de disco en la carpeta «%@» (%@). Revise el dispositivo en el que está la carpeta e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>La imagen de disco necesita %@, pero solo hay %@ libres en la carpeta «%@». Libere espacio en ella o elija otra carpeta.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>No se pudo organizar el contenido del CD. Quite lo último que haya añadido e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>No se pudo poner nombre al CD.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>«%@» ya no es igual que cuando se añadió a la lista. Quite el archivo de la lista, añádalo de nuevo y vuelva a empezar.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>«%@» ya no está. Devuelva el archivo a su sitio o quítelo de la lista.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>No tiene permiso para leer «%@». Cámbielo o quite el archivo de la lista.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>No se puede leer «%@» (%@). Revise el disco o la red en que se encuentra, o quítelo de la lista.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>Es un enlace a algo que no existe.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>Es un enlace que lleva a sí mismo.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>Su ruta es demasiado larga. Muévalo a una carpeta de un nivel superior.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>Es una tubería, un socket o un dispositivo y no contiene nada que grabar.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>Es un enlace a una carpeta en la que él mismo se encuentra.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>Es un enlace a una carpeta que ya aparece aquí muchas veces.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>No hay canciones en esta carpeta.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>No es un archivo ni una carpeta.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Hay demasiadas listas de reproducción unas dentro de otras.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>La lista de reproducción no menciona ningún archivo.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>Las listas de reproducción mencionan demasiados archivos.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>Es una dirección de red. Solo se pueden grabar archivos de este equipo.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>No se puede leer la lista de reproducción (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>El archivo tiene nombre de lista de reproducción, pero no lo es.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>Buscando unidades de CD…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>No se pudo grabar el disco de la unidad «%@». Ya no se puede usar: inténtelo con uno nuevo, preferiblemente de otra marca.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>La bandeja de la unidad «%@» está abierta. Ponga un CD vacío, ciérrela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>Se sacó el disco de la unidad «%@» o se puso otro. Inserte un CD vacío e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>La unidad «%@» no llega a estar lista. Saque el disco, límpielo o use otro, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>El disco de la unidad «%@» no se puede grabar. Inserte un CD-R o CD-RW vacío.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>El disco de la unidad «%@» está protegido contra escritura. Inserte otro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>El disco de la unidad «%@» tiene menos espacio del que indicaba. Grabe en un disco de otra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>La unidad «%@» no pudo ajustar el láser al disco. Pruebe con un disco de otra marca. Si ocurre con todos los discos, quizá la lente esté sucia.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>La unidad «%@» tuvo que esperar datos y el disco se ha echado a perder. Cierre otros programas e inténtelo con un disco nuevo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>No se pudo grabar el disco de la unidad «%@» en el sector %@. Ya no se puede usar: inténtelo con uno nuevo, preferiblemente de otra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>La unidad «%@» no pudo cerrar el disco. Puede que otras unidades no lo lean: inténtelo con uno nuevo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>No se pudo leer el disco de la unidad «%@». Límpielo o use otro.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>La unidad «%@» informa de un fallo propio. Apáguela y vuelva a encenderla. Si no sirve, use otra.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>Se ha perturbado la conexión con la unidad «%@». Compruebe el cable, conéctela directamente al equipo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>La unidad «%@» se niega a grabar del modo que hace falta aquí. Use otra unidad.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>No se puede sacar el disco de la unidad «%@»: otro programa la ha bloqueado.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>No tiene permiso para usar la unidad «%@». Pida acceso a un administrador.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>No tiene permiso para usar la unidad «%@»: pertenece al grupo «%@». Pida a un administrador que le añada a ese grupo y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Otro programa está usando la unidad «%@». Espere a que termine o ciérrelo, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>El programa %@ está usando la unidad «%@». Espere a que termine o ciérrelo, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>La unidad «%@» informa de un error (%@). Inténtelo de nuevo; si no sirve, use otro disco u otra unidad.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>La unidad «%@» se ha desconectado. Conéctela otra vez y empiece de nuevo con un CD vacío.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>La unidad «%@» no responde. Apáguela y vuelva a encenderla, o conéctela de nuevo.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>No se puede usar la unidad «%@» (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La pista %@, «%@», no se puede volver a leer del CD. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>El CD se grabó, pero no se pudo verificar: la unidad «%@» se desconectó, no responde o se quedó sin disco. Compruebe en un reproductor o en un ordenador si se puede leer.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La tabla de contenidos del CD no se puede volver a leer. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«%@» no se puede volver a leer del CD. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>El CD de la unidad «%@» se ha grabado, pero no está como debería. No se fíe de este CD: grabe la lista de nuevo en otro.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>La unidad «%@» no ha podido abrir la bandeja. Compruebe que nada la obstruye e inténtelo de nuevo.</translation>
    </message>
</context>
</TS>
