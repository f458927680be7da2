<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>À propos de Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>À &amp;propos de Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Une bibliothèque musicale avec des outils.
Logiciel libre sous licence publique générale GNU, version 2 ou ultérieure.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>&amp;Morceaux</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>&amp;Choisir le dossier de musique…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Rechercher à nouveau les morceaux</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Rechercher des morceaux</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Envoyer vers %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Ajouter les morceaux sélectionnés à la liste de %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Rechercher des morceaux</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Recherche des morceaux</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Recherche des morceaux…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Choisir le dossier de musique</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Aucun morceau ne correspond à « %1 »</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>La recherche porte sur les titres, les artistes, les albums et les noms de fichiers.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>Le dossier de musique est illisible</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1 : %2. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Aucun morceau pour l’instant</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Placez de la musique dans %1 ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>Aucun outil ne s’appelle « %1 ».</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>Aucun outil ne peut recevoir les fichiers.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>L’outil n’a pas accepté les morceaux.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
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
        <translation>Fermer ce message</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>Le fichier n’est pas un greffon.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>Le greffon appartient à un autre programme.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>L’outil a été conçu pour une autre version de Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>L’outil ne dit pas ce qu’il est.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>Impossible de charger l’outil : %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>Le greffon ne contient aucun outil, contrairement à ce qu’il annonce.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Un autre outil porte le même nom, « %1 ».</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 morceau</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1 morceau sélectionné</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 jour</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln morceau</numerusform>
            <numerusform>%Ln morceaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln morceau sélectionné</numerusform>
            <numerusform>%Ln morceaux sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln heure</numerusform>
            <numerusform>%Ln heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln minute</numerusform>
            <numerusform>%Ln minutes</numerusform>
        </translation>
    </message>
</context>
</TS>
