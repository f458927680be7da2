<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>Graveur de CD</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Vérification des fichiers…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>Traitement&#xa0;: %@ (%d sur %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>Gravure de «&#xa0;%@&#xa0;»</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD audio</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Démarrage de la gravure</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Préparation de la gravure</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Temps restant&#xa0;: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Ouverture de la piste %lu sur %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Écriture de la piste %lu sur %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Fermeture de la piste %lu sur %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Fermeture de la session</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Fin de la gravure</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>Vérification du CD</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Vous pouvez maintenant éjecter le CD</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>Le CD risque de ne plus être utilisable. Voulez-vous vraiment annuler&#xa0;?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Durée utilisée&#xa0;: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Espace utilisé&#xa0;: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Durée restante&#xa0;: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Espace restant&#xa0;: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Durée en trop&#xa0;: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Espace en trop&#xa0;: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>L’espace de stockage est insuffisant.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Veuillez connecter un lecteur de CD.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Ce lecteur ne peut pas graver de CD.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>Vérification du CD…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Ce CD n’est pas vierge. Veuillez insérer un CD vierge.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Veuillez insérer un CD vierge…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de données</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Déposez vos fichiers musicaux ici</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>Aucun lecteur de CD trouvé.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;Lecteur&#xa0;:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Nom du CD&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>É&amp;jecter</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Graver</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Éjecter le CD du lecteur</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Retirer tous les éléments de la liste</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Graver la liste sur le CD</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>Le type de CD à graver</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Type de CD</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Liste à graver</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Capacité utilisée</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Se lit dans les lecteurs de CD et les autoradios. Contient environ 80 minutes de musique et jusqu’à 99 morceaux, quelle que soit la taille des fichiers.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Conserve les fichiers et les dossiers tels quels pour les ordinateurs. Contient environ 700&#xa0;Mo.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Ce qu’il vous faut</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Un CD-R ou un CD-RW vierge. La barre indique à quel point il sera rempli&#xa0;; ce qui n’y tient pas doit être retiré de la liste.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>Le lecteur est introuvable&#xa0;?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Vérifiez son câble et son alimentation, puis attendez quelques secondes. Un lecteur utilisé par un autre programme n’est disponible ici qu’une fois ce programme fermé.</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>Eo</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>octet</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>La partie du programme qui lit les morceaux n’a pas pu être chargée. Réinstallez le programme.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être lu jusqu’au bout&#xa0;: le fichier, ou le disque sur lequel il se trouve, est endommagé. Retirez-le de la liste, ou remplacez-le par une copie intacte et ajoutez-le de nouveau.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>«&#xa0;%@&#xa0;» n’est plus à sa place. Remettez le fichier à cet endroit ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>«&#xa0;%@&#xa0;» n’est plus le même fichier qu’au moment de l’ajout. Retirez-le de la liste et ajoutez-le de nouveau.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>«&#xa0;%@&#xa0;» est plus court qu’au moment de l’ajout&#xa0;: le fichier a été coupé ou endommagé. Retirez-le de la liste, ou remplacez-le par une copie intacte et ajoutez-le de nouveau.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>Le fichier ne contient aucun son.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>Lecture impossible (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>Ce fichier ou ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>Lecture impossible&#xa0;: vous n’avez pas l’autorisation d’ouvrir ce fichier.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>C’est un fichier MP4 protégé contre la copie, que seul le lecteur de son vendeur peut lire.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>C’est un fichier Windows Media protégé contre la copie, que seul le lecteur de son vendeur peut lire.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>C’est un livre audio chiffré d’Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>Ce n’est pas un fichier audio, ou son début est endommagé.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>Le fichier contient des images, mais aucun son.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>Le fichier est tronqué&#xa0;: la fin du morceau manque.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>Le format audio du fichier n’est pas connu ici.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>Aucun décodeur n’est disponible pour le son du fichier (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>Le son du fichier (%@) ne peut pas être décodé.</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>Le fichier est endommagé ou tronqué.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>Les canaux du fichier (au nombre de %@) ne peuvent pas être réduits à deux.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>Il n’y a rien à graver&#xa0;: la liste est vide. Ajoutez-y d’abord des fichiers.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Un CD audio contient au plus %@ morceaux et la liste en compte %@. Retirez-en et gravez-les sur un autre CD.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>Aucun lecteur n’est disponible pour la gravure. Connectez un graveur de CD ou choisissez-en un.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» n’est plus connecté. Reconnectez-le ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>Des fichiers sont encore en cours d’ajout à la liste. Attendez la fin de leur vérification, puis lancez la gravure.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>La liste est déjà en cours de gravure. Attendez que ce CD soit terminé.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» est occupé par un autre CD. Attendez qu’il ait terminé.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>Le CD était terminé avant que la gravure puisse être arrêtée. Il est utilisable.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Une erreur inattendue s’est produite (%@). Réessayez&#xa0;; si elle se reproduit, veuillez la signaler.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>La liste ne tient pas sur le CD&#xa0;: il lui faut %@ et le CD offre %@. Retirez quelque chose de la liste ou insérez un CD de plus grande capacité.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>«&#xa0;%@&#xa0;» n’est plus là. Remettez le fichier à sa place ou retirez-le de la liste, puis réessayez.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être lu (%@). Vérifiez le fichier et ses droits d’accès ou retirez-le de la liste, puis réessayez.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La piste %@, «&#xa0;%@&#xa0;», n’est pas sur le CD telle qu’elle a été envoyée. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La table des matières du CD n’est pas telle qu’elle a été envoyée. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«&#xa0;%@&#xa0;» n’est pas sur le CD tel que le fichier a été envoyé. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» ne peut pas graver de CD. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>Il n’y a pas de disque dans le lecteur «&#xa0;%@&#xa0;». Insérez un CD vierge.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’est pas un CD. Insérez un CD vierge.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’est pas vierge. Éjectez-le et insérez un CD vierge.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>La vérification des fichiers n’a pas pu être menée à terme (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>Le disque dans «&#xa0;%@&#xa0;» n’est pas vierge. Éjectez-le et insérez un disque vierge.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>La liste ne tient pas sur le disque dans «&#xa0;%@&#xa0;». Retirez quelque chose de la liste.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>Image de disque (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>«&#xa0;%@&#xa0;» n’a pas la longueur attendue. Retirez le fichier de la liste, ajoutez-le de nouveau et recommencez.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>L’image de disque a été écrite dans le dossier «&#xa0;%@&#xa0;», mais elle n’a pas pu être relue pour être comparée. Vérifiez le périphérique sur lequel se trouve le dossier, puis réessayez.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>Le dossier «&#xa0;%@&#xa0;» prévu pour l’image de disque n’existe pas. Créez-le ou choisissez un autre lecteur.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>L’image de disque ne peut pas être écrite dans le dossier «&#xa0;%@&#xa0;»&#xa0;: il est en lecture seule, ou vous n’avez pas le droit de le modifier. Choisissez un autre dossier ou modifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Il n’y a pas assez d’espace pour l’image de disque dans le dossier «&#xa0;%@&#xa0;». Libérez-y de l’espace ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>L’image de disque n’a pas pu être écrite dans le dossier «&#xa0;%@&#xa0;» (%@). Vérifiez le périphérique sur lequel se trouve le dossier, puis réessayez.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>L’image de disque nécessite %@, mais il ne reste que %@ dans le dossier «&#xa0;%@&#xa0;». Libérez-y de l’espace ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>Le contenu du CD n’a pas pu être organisé. Retirez ce que vous avez ajouté en dernier, puis réessayez.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>Le nom du CD n’a pas pu être attribué.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>«&#xa0;%@&#xa0;» n’est plus tel qu’au moment de son ajout à la liste. Retirez le fichier de la liste, ajoutez-le de nouveau et recommencez.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>«&#xa0;%@&#xa0;» n’est plus là. Remettez le fichier à sa place ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>Vous n’avez pas l’autorisation de lire «&#xa0;%@&#xa0;». Modifiez cela ou retirez le fichier de la liste.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être lu (%@). Vérifiez le disque ou le réseau sur lequel se trouve le fichier, ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>C’est un lien vers un élément qui n’existe pas.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>C’est un lien qui mène à lui-même.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>Son chemin d’accès est trop long. Déplacez-le dans un dossier plus proche de la racine.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>C’est un tube, un socket ou un périphérique&#xa0;: il ne contient rien à graver.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>C’est un lien vers un dossier dans lequel il se trouve lui-même.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>C’est un lien vers un dossier qui figure déjà ici de nombreuses fois.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>Ce dossier ne contient aucun morceau.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>Ce n’est ni un fichier ni un dossier.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Trop de listes de lecture sont imbriquées les unes dans les autres.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>La liste de lecture ne mentionne aucun fichier.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>Les listes de lecture mentionnent trop de fichiers.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>C’est une adresse réseau. Seuls les fichiers de cet ordinateur peuvent être gravés.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>La liste de lecture ne peut pas être lue (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>Le fichier porte le nom d’une liste de lecture, mais n’en est pas une.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>Recherche des lecteurs de CD…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’a pas pu être gravé. Il n’est plus utilisable&#xa0;: réessayez avec un disque neuf, de préférence d’une autre marque.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>Le tiroir du lecteur «&#xa0;%@&#xa0;» est ouvert. Insérez un CD vierge, fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>Le disque a été retiré du lecteur «&#xa0;%@&#xa0;», ou un autre y a été inséré. Insérez un CD vierge et réessayez.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» n’est toujours pas prêt. Retirez le disque, nettoyez-le ou prenez-en un autre, puis réessayez.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’est pas inscriptible. Insérez un CD-R ou un CD-RW vierge.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» est protégé en écriture. Insérez-en un autre.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» a moins de place qu’annoncé. Gravez sur un disque d’une autre marque.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» n’a pas pu régler son laser sur le disque. Essayez un disque d’une autre marque. Si cela arrive avec tous les disques, la lentille est peut-être sale.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» a dû attendre des données et le disque est perdu. Fermez les autres programmes et réessayez avec un disque neuf.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’a pas pu être gravé au secteur %@. Il n’est plus utilisable&#xa0;: réessayez avec un disque neuf, de préférence d’une autre marque.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» n’a pas pu fermer le disque. D’autres lecteurs risquent de ne pas pouvoir le lire&#xa0;: réessayez avec un disque neuf.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>Le disque dans le lecteur «&#xa0;%@&#xa0;» n’a pas pu être lu. Nettoyez-le ou prenez-en un autre.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» signale une panne interne. Éteignez-le et rallumez-le. Si cela ne suffit pas, utilisez un autre lecteur.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>La connexion au lecteur «&#xa0;%@&#xa0;» a été perturbée. Vérifiez le câble, branchez-le directement à l’ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» refuse de graver de la manière nécessaire ici. Utilisez un autre lecteur.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>Le disque ne peut pas être retiré du lecteur «&#xa0;%@&#xa0;»&#xa0;: un autre programme l’a verrouillé.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>Vous n’êtes pas autorisé à utiliser le lecteur «&#xa0;%@&#xa0;». Demandez l’accès à un administrateur.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>Vous n’êtes pas autorisé à utiliser le lecteur «&#xa0;%@&#xa0;»&#xa0;: il appartient au groupe «&#xa0;%@&#xa0;». Demandez à un administrateur de vous ajouter à ce groupe, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Un autre programme utilise le lecteur «&#xa0;%@&#xa0;». Attendez qu’il ait terminé ou fermez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Le programme %@ utilise le lecteur «&#xa0;%@&#xa0;». Attendez qu’il ait terminé ou fermez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» signale une erreur (%@). Réessayez&#xa0;; si cela ne suffit pas, utilisez un autre disque ou un autre lecteur.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» a été débranché. Rebranchez-le et recommencez avec un CD vierge.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» ne répond pas. Éteignez-le et rallumez-le, ou rebranchez-le.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» ne peut pas être utilisé (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La piste %@, «&#xa0;%@&#xa0;», ne peut pas être relue sur le CD. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>Le CD a été gravé, mais n’a pas pu être vérifié&#xa0;: le lecteur «&#xa0;%@&#xa0;» a été débranché, ne répond pas ou n’a plus de disque. Vérifiez dans un lecteur ou un ordinateur s’il peut être lu.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>La table des matières du CD ne peut pas être relue. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être relu sur le CD. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Le CD du lecteur «&#xa0;%@&#xa0;» a été gravé, mais il n’est pas tel qu’il devrait être. Ne vous fiez pas à ce CD&#xa0;: gravez de nouveau la liste sur un autre.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>Le lecteur «&#xa0;%@&#xa0;» n’a pas pu ouvrir son tiroir. Vérifiez que rien ne le gêne, puis réessayez.</translation>
    </message>
</context>
</TS>
