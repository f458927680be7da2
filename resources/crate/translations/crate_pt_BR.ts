<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Sobre o Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;Sobre o Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>Uma biblioteca de músicas com ferramentas.
Software livre sob a Licença Pública Geral GNU, versão 2 ou posterior.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>&amp;Músicas</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>&amp;Escolher a pasta de músicas…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>&amp;Procurar músicas novamente</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>&amp;Buscar músicas</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>Músicas</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Abrir %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>Enviar para %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>Adicionar as músicas selecionadas à lista de %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>Buscar músicas</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Limpar a busca</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>Procurando músicas</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>Procurando músicas…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>Escolher a pasta de músicas</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Escolher pasta…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>Nenhuma música corresponde a “%1”</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>A busca abrange títulos, artistas, álbuns e nomes de arquivos.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>Não é possível ler a pasta de músicas</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>%1: %2. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>Ainda não há músicas</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>Coloque músicas em %1 ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>Não há nenhuma ferramenta chamada “%1”.</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>Não há nenhuma ferramenta à qual passar os arquivos.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>A ferramenta não aceitou as músicas.</translation>
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
        <translation>Fechar esta mensagem</translation>
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
        <translation>Faixa</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>O arquivo não é um plug-in.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>O plug-in pertence a outro programa.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>A ferramenta foi feita para outra versão do Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>A ferramenta não informa o que é.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>Não é possível carregar a ferramenta: %1</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>O plug-in não contém nenhuma ferramenta, embora diga que sim.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>Outra ferramenta tem o mesmo nome, “%1”.</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>1 música</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>1 música selecionada</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 dia</translation>
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
            <numerusform>%Ln música</numerusform>
            <numerusform>%Ln músicas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>%Ln música selecionada</numerusform>
            <numerusform>%Ln músicas selecionadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln dia</numerusform>
            <numerusform>%Ln dias</numerusform>
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
