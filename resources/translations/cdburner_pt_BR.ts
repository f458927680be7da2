<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>Gravador de CD</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando os arquivos…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Iniciando</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>Processando: %@ (%d de %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>Gravando “%@”</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD de áudio</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Iniciando a gravação</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Preparando a gravação</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Tempo restante: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Abrindo a faixa %lu de %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Gravando a faixa %lu de %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Fechando a faixa %lu de %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Fechando a sessão</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Conclusão da gravação</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>Verificando o CD</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Agora você pode ejetar o CD</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>O CD pode ficar inutilizável. Tem certeza de que deseja cancelar?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Tempo usado: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Espaço usado: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Tempo disponível: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Espaço disponível: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Tempo excedente: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Espaço excedente: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>Não há espaço de armazenamento suficiente.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Conecte uma unidade de CD.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Esta unidade não pode gravar CDs.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>Verificando o CD…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Este CD não está vazio. Insira um CD vazio.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Insira um CD vazio…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de dados</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Arraste os arquivos de música para cá</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remover da lista</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>Nenhuma unidade de CD encontrada.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;Unidade:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Nome do CD:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Ejetar</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Limpar lista</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Gravar</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Ejetar o CD da unidade</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Remover tudo da lista</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Gravar a lista no CD</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>O tipo de CD a gravar</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Tipo de CD</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Lista de gravação</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Capacidade usada</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Toca em aparelhos de CD e no carro. Comporta cerca de 80 minutos de música e até 99 músicas, seja qual for o tamanho dos arquivos.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Guarda arquivos e pastas para computadores, do jeito que são. Comporta cerca de 700&#xa0;MB.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Do que você precisa</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Um CD-R ou CD-RW vazio. A barra mostra quanto dele será ocupado; o que não couber precisa sair da lista.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>A unidade não foi encontrada?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Verifique o cabo e a energia e aguarde alguns segundos. Uma unidade em uso por outro programa só fica disponível aqui depois que esse programa for fechado.</translation>
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
        <translation>Não foi possível carregar a parte do programa que reproduz músicas. Instale o programa novamente.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>Não é possível ler “%@” até o fim: o arquivo, ou o disco em que ele está, está danificado. Retire-o da lista ou substitua-o por uma cópia em bom estado e adicione-o novamente.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>“%@” não está mais no lugar. Coloque o arquivo de volta ou retire-o da lista.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>“%@” não é mais o mesmo arquivo de quando foi adicionado. Retire-o da lista e adicione-o novamente.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>“%@” está mais curto do que quando foi adicionado: o arquivo foi cortado ou danificado. Retire-o da lista ou substitua-o por uma cópia em bom estado e adicione-o novamente.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>Não há som nele.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>Não é possível ler (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>Esse arquivo ou pasta não existe.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>Não é possível ler: você não tem permissão para abri-lo.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Não é um arquivo.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>É um arquivo MP4 protegido contra cópia, que só o reprodutor da própria loja pode tocar.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>É um arquivo do Windows Media protegido contra cópia, que só o reprodutor da própria loja pode tocar.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>É um audiolivro criptografado da Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Está vazio.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>Não é um arquivo de som, ou o início dele está danificado.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>Tem imagens, mas não tem som.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>Está cortado: falta o fim da música.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>O som está em um formato desconhecido.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>Não há decodificador para o som dele (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>Não é possível decodificar o som dele (%@).</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>Está danificado ou cortado.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>Os canais dele (no total, %@) não podem ser reduzidos a dois.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>Não há nada para gravar: a lista está vazia. Adicione arquivos primeiro.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Um CD de áudio comporta no máximo %@ músicas, e a lista tem %@. Retire algumas e grave-as em outro CD.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>Não há unidade para gravar. Conecte um gravador de CD ou escolha um.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>A unidade “%@” não está mais conectada. Conecte-a novamente ou escolha outra.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>Ainda há arquivos sendo adicionados à lista. Aguarde até que sejam verificados e depois grave.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>A lista já está sendo gravada. Aguarde até que esse CD fique pronto.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>A unidade “%@” está ocupada com outro CD. Aguarde até que ela termine.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>O CD ficou pronto antes que a gravação pudesse ser interrompida. Ele pode ser usado.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Ocorreu um erro inesperado (%@). Tente novamente; se acontecer de novo, informe o problema.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>A lista não cabe no CD: ela precisa de %@, e o CD tem espaço para %@. Retire algo da lista ou insira um CD de maior capacidade.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>“%@” não está mais lá. Coloque o arquivo de volta ou retire-o da lista e tente novamente.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>Não é possível ler “%@” (%@). Verifique o arquivo e suas permissões ou retire-o da lista e tente novamente.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>A faixa %@, “%@”, não está no CD da forma como foi enviada. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>O índice do CD não está da forma como foi enviado. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>“%@” não está no CD da forma como foi enviado. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>A unidade “%@” não pode gravar CDs. Escolha outra.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>Não há disco na unidade “%@”. Insira um CD vazio.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>O disco na unidade “%@” não é um CD. Insira um CD vazio.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>O disco na unidade “%@” não está vazio. Ejete-o e insira um CD vazio.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>Não foi possível verificar os arquivos até o fim (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>O disco em “%@” não está vazio. Ejete-o e insira um disco vazio.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>A lista não cabe no disco em “%@”. Retire algo da lista.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>Imagem de disco (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>“%@” não tem o tamanho esperado. Retire o arquivo da lista, adicione-o novamente e recomece.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>A imagem de disco foi gravada na pasta “%@”, mas não foi possível lê-la de volta para compará-la. Verifique o dispositivo em que a pasta está e tente novamente.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>A pasta “%@” para a imagem de disco não existe. Crie-a ou escolha outra unidade.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>Não é possível gravar a imagem de disco na pasta “%@”: ela é somente leitura ou você não tem permissão para alterá-la. Escolha outra pasta ou altere as permissões dela.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Não há espaço suficiente para a imagem de disco na pasta “%@”. Libere espaço nela ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>Não foi possível gravar a imagem de disco na pasta “%@” (%@). Verifique o dispositivo em que a pasta está e tente novamente.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>A imagem de disco precisa de %@, mas há apenas %@ livres na pasta “%@”. Libere espaço nela ou escolha outra pasta.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>Não foi possível organizar o conteúdo do CD. Retire o que você adicionou por último e tente novamente.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>Não foi possível dar nome ao CD.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>“%@” não está mais igual a quando foi adicionado à lista. Retire o arquivo da lista, adicione-o novamente e recomece.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>“%@” não está mais lá. Coloque o arquivo de volta ou retire-o da lista.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>Você não tem permissão para ler “%@”. Altere isso ou retire o arquivo da lista.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>Não é possível ler “%@” (%@). Verifique o disco ou a rede em que ele está ou retire-o da lista.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>É um link para algo que não existe.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>É um link que leva de volta a si mesmo.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>O caminho é longo demais. Mova-o para uma pasta mais próxima da raiz.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>É um pipe, um socket ou um dispositivo e não contém nada para gravar.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>É um link para uma pasta em que ele próprio está.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>É um link para uma pasta que já aparece aqui muitas vezes.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>Não há músicas nesta pasta.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>Não é um arquivo nem uma pasta.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Há listas de reprodução demais umas dentro das outras.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>A lista de reprodução não indica nenhum arquivo.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>As listas de reprodução indicam arquivos demais.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>É um endereço de rede. Só é possível gravar arquivos deste computador.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>Não é possível ler a lista de reprodução (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>O arquivo tem nome de lista de reprodução, mas não é uma.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>Procurando unidades de CD…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Não foi possível gravar o disco na unidade “%@”. Ele não pode mais ser usado: tente com um novo, de preferência de outra marca.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>A bandeja da unidade “%@” está aberta. Coloque um CD vazio, feche-a e tente de novo.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>O disco foi retirado da unidade “%@”, ou outro foi colocado. Insira um CD vazio e tente de novo.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>A unidade “%@” não fica pronta. Retire o disco, limpe-o ou use outro, e tente de novo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>O disco na unidade “%@” não é gravável. Insira um CD-R ou CD-RW vazio.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>O disco na unidade “%@” está protegido contra gravação. Insira outro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>O disco na unidade “%@” tem menos espaço do que informou. Grave em um disco de outra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>A unidade “%@” não conseguiu ajustar o laser ao disco. Tente um disco de outra marca. Se isso acontecer com todos os discos, a lente pode estar suja.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>A unidade “%@” teve de esperar pelos dados e o disco foi perdido. Feche outros programas e tente com um disco novo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Não foi possível gravar o disco na unidade “%@” no setor %@. Ele não pode mais ser usado: tente com um novo, de preferência de outra marca.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>A unidade “%@” não conseguiu fechar o disco. Outras unidades talvez não consigam lê-lo: tente com um novo.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>Não foi possível ler o disco na unidade “%@”. Limpe-o ou use outro.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>A unidade “%@” informa um defeito próprio. Desligue-a e ligue-a de novo. Se não adiantar, use outra.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>A conexão com a unidade “%@” foi perturbada. Verifique o cabo, conecte-a diretamente ao computador e tente de novo.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>A unidade “%@” recusa-se a gravar do modo necessário aqui. Use outra unidade.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>Não é possível retirar o disco da unidade “%@”: outro programa a bloqueou.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>Você não tem permissão para usar a unidade “%@”. Peça acesso a um administrador.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>Você não tem permissão para usar a unidade “%@”: ela pertence ao grupo “%@”. Peça a um administrador que o adicione a esse grupo e entre de novo na sessão.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Outro programa está usando a unidade “%@”. Aguarde até que ele termine ou feche-o e tente de novo.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>O programa %@ está usando a unidade “%@”. Aguarde até que ele termine ou feche-o e tente de novo.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>A unidade “%@” informa um erro (%@). Tente de novo; se não adiantar, use outro disco ou outra unidade.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>A unidade “%@” foi desconectada. Conecte-a de novo e recomece com um CD vazio.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>A unidade “%@” não responde. Desligue-a e ligue-a de novo, ou reconecte-a.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>Não é possível usar a unidade “%@” (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>A faixa %@, “%@”, não pode ser lida de volta do CD. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>O CD foi gravado, mas não pôde ser verificado: a unidade “%@” foi desconectada, não responde ou ficou sem o disco. Verifique em um aparelho ou computador se ele pode ser lido.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>O índice do CD não pode ser lido de volta. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>“%@” não pode ser lido de volta do CD. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>O CD na unidade “%@” foi gravado, mas não está como deveria. Não confie neste CD: grave a lista novamente em outro.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>A unidade “%@” não conseguiu abrir a bandeja. Verifique se não há nada no caminho e tente novamente.</translation>
    </message>
</context>
</TS>
