<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
        <translation>О программе Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;О программе Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Музыкальная библиотека с инструментами.
Свободная программа на условиях GNU General Public License версии 2 или более поздней.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>П&amp;есни</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Инструменты</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>&amp;Выбрать папку с музыкой…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Искать песни снова</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыйти</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Выделить всё</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Найти песни</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Песни</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Открыть: %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Отправить: %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Добавить выделенные песни в список: %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Поиск песен</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Поиск песен</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Поиск песен…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Выбор папки с музыкой</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Выбрать папку…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Ничего не найдено: «%1»</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>Поиск идёт по названиям, исполнителям, альбомам и именам файлов.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>Не удаётся прочитать папку с музыкой</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2. Выберите другую папку.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Песен пока нет</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Положите музыку в папку %1 или выберите другую.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>Инструмента «%1» нет.</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>Нет инструмента, которому можно передать файлы.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>Инструмент не принял песни.</translation>
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
        <translation>Закрыть сообщение</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Название</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Исполнитель</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Альбом</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>Файл не является модулем.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>Модуль принадлежит другой программе.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>Инструмент сделан для другой версии Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>Инструмент не сообщает, что он такое.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>Не удаётся загрузить инструмент: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>В модуле нет инструмента, хотя он заявлен.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Другой инструмент носит то же имя: «%1».</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 песня</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>Выделена 1 песня</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 день</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 час</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 минута</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln песня</numerusform>
            <numerusform>%Ln песни</numerusform>
            <numerusform>%Ln песен</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>Выделена %Ln песня</numerusform>
            <numerusform>Выделены %Ln песни</numerusform>
            <numerusform>Выделено %Ln песен</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln день</numerusform>
            <numerusform>%Ln дня</numerusform>
            <numerusform>%Ln дней</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln час</numerusform>
            <numerusform>%Ln часа</numerusform>
            <numerusform>%Ln часов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln минута</numerusform>
            <numerusform>%Ln минуты</numerusform>
            <numerusform>%Ln минут</numerusform>
        </translation>
    </message>
</context>
</TS>
