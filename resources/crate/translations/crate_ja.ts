<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>Crateについて</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>Crateについて(&amp;A)</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>ツールを備えた音楽ライブラリです。
GNU General Public License バージョン2以降によるフリーソフトウェアです。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>曲(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>音楽フォルダーを選ぶ(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>曲をもう一度探す(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>曲を検索(&amp;F)</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1を開く</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>%1に送る</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>選択した曲を%1のリストに追加する</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>曲を検索</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索を消去</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>曲を探しています</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>曲を探しています…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>音楽フォルダーを選ぶ</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>フォルダーを選ぶ…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>「%1」に一致する曲はありません</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>タイトル、アーティスト、アルバム、ファイル名を検索します。</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>音楽フォルダーを読み込めません</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>まだ曲がありません</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>%1に音楽を入れるか、別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>「%1」という名前のツールはありません。</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>ファイルを渡せるツールがありません。</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>ツールが曲を受け付けませんでした。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>このメッセージを閉じる</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>このファイルはプラグインではありません。</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>このプラグインは別のプログラムのものです。</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>このツールは別のバージョンのCrate用です。</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>このツールには自身の説明がありません。</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>ツールを読み込めません: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>このプラグインには、あるはずのツールがありません。</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>同じ名前「%1」のツールがほかにあります。</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1曲</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1曲を選択中</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1日</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1時間</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1分</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln曲を選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln日</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln時間</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln分</numerusform>
        </translation>
    </message>
</context>
</TS>
