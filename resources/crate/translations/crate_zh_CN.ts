<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>关于 Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>关于 Crate(&amp;A)</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>带有工具的音乐库。
自由软件，依据 GNU 通用公共许可证第 2 版或更高版本发布。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>歌曲(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>选择音乐文件夹(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>重新查找歌曲(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>查找歌曲(&amp;F)</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>歌曲</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>打开%1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>发送到%1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>将所选歌曲添加到%1的列表</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>搜索歌曲</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>正在查找歌曲</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>正在查找歌曲…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>选择音乐文件夹</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>没有与“%1”匹配的歌曲</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>搜索范围为标题、艺人、专辑和文件名。</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>无法读取音乐文件夹</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1：%2。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>还没有歌曲</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>请将音乐放入 %1，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>没有名为“%1”的工具。</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>没有可以接收这些文件的工具。</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>工具未接受这些歌曲。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>关闭此消息</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>艺人</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>专辑</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>音轨</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>该文件不是插件。</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>该插件属于另一个程序。</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>该工具适用于另一版本的 Crate。</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>该工具没有说明自己是什么。</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>无法加载该工具：%1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>该插件声称含有工具，但其中没有。</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>另一个工具也叫“%1”。</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 首歌曲</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>已选择 1 首歌曲</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 天</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 小时</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 分钟</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>%Ln 首歌曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>已选择 %Ln 首歌曲</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln 天</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln 小时</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln 分钟</numerusform>
        </translation>
    </message>
</context>
</TS>
