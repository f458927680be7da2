<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>CD 刻录</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>正在开始</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>正在处理：%@（第 %d 个，共 %d 个）</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>正在刻录“%@”</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>音频 CD</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>正在开始刻录</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>正在准备刻录</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>剩余时间：%@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>正在打开音轨 %lu/%lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>正在写入音轨 %lu/%lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>正在关闭音轨 %lu/%lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>正在关闭区段</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>完成刻录</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>正在校验 CD</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>现在可以弹出 CD</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>光盘可能无法再使用。确定要取消吗？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>已用时间：%@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>已用空间：%@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>剩余时间：%@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>剩余空间：%@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>超出时间：%@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>超出空间：%@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>存储空间不足。</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>请连接光盘驱动器。</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>此光盘驱动器不支持刻录。</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>正在检查光盘…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>这不是空白 CD，请插入空白 CD。</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>请插入空白光盘…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>数据 CD</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>将音乐文件拖到这里</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>未找到光盘驱动器。</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>光驱(&amp;D)：</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>光盘名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>弹出(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清空列表(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>刻录(&amp;B)</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>从光驱中弹出光盘</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>移除列表中的所有内容</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>将列表刻录到光盘</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>要刻录的光盘类型</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>光盘类型</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>刻录列表</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>已用容量</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>可在 CD 播放器和汽车中播放。无论文件多大，约可容纳 80 分钟音乐，最多 99 首歌曲。</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>为电脑原样保存文件和文件夹。约可容纳 700&#xa0;MB。</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>所需物品</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>一张空白 CD-R 或 CD-RW。容量条显示光盘将被占用多少；放不下的内容需要从列表中移除。</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>找不到光驱？</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>请检查数据线和电源，然后稍等几秒。被其他程序占用的光驱，在该程序关闭之前无法在此使用。</translation>
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
        <translation>字节</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>无法加载程序中播放歌曲的部分。请重新安装程序。</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>无法完整读取“%@”：文件或其所在的磁盘已损坏。请将其从列表中移除，或换成完好的副本后重新添加。</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>“%@”已不在原处。请将其放回，或从列表中移除。</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>“%@”已不是添加时的文件。请将其从列表中移除并重新添加。</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>“%@”比添加时短：文件被截断或已损坏。请将其从列表中移除，或换成完好的副本后重新添加。</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>其中没有声音。</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>无法读取（%@）。</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>没有这个文件或文件夹。</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>无法读取：您没有打开它的权限。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>这是受复制保护的 MP4 文件，只能用其商店自己的播放器播放。</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>这是受复制保护的 Windows Media 文件，只能用其商店自己的播放器播放。</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>这是加密的 Audible 有声书。</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>这不是声音文件，或其开头已损坏。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>其中有图像，但没有声音。</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>文件被截断：缺少歌曲的结尾。</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>其声音格式未知。</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>没有可用于其声音的解码器（%@）。</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>无法解码其声音（%@）。</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>文件已损坏或被截断。</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>无法将其 %@ 个声道混合为两个声道。</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>没有可刻录的内容：列表为空。请先添加文件。</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>音频 CD 最多容纳 %@ 首歌曲，而列表中有 %@ 首。请移除一部分，并刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>没有可用于刻录的光驱。请连接 CD 刻录机，或选择一台。</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>光驱“%@”已断开连接。请重新连接，或选择其他光驱。</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>仍在向列表添加文件。请等待检查完毕后再刻录。</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>列表正在刻录中。请等待该光盘完成。</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>光驱“%@”正忙于处理另一张光盘。请等待其完成。</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>在停止刻录之前，光盘已经完成。该光盘可以使用。</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>发生意外问题（%@）。请重试；如果再次发生，请报告此问题。</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>列表在光盘上放不下：需要 %@，而光盘可容纳 %@。请从列表中移除一些内容，或插入容量更大的光盘。</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>“%@”已不存在。请将其放回，或从列表中移除，然后重试。</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>无法读取“%@”（%@）。请检查该文件及其权限，或将其从列表中移除，然后重试。</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>音轨 %@“%@”在光盘上的内容与发送的不一致。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>光盘的目录与发送的不一致。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>“%@”在光盘上的内容与发送的不一致。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>光驱“%@”无法刻录 CD。请选择其他光驱。</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>光驱“%@”中没有光盘。请插入空白 CD。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>光驱“%@”中的光盘不是 CD。请插入空白 CD。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>光驱“%@”中的光盘不是空白的。请将其弹出并插入空白 CD。</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>文件未能全部检查完（%@）。</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>“%@”中的光盘不是空白的。请将其弹出并插入空白光盘。</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>列表在“%@”中的光盘上放不下。请从列表中移除一些内容。</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>光盘映像（%@）</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>“%@”的长度与预期不符。请将其从列表中移除，重新添加，然后从头开始。</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>光盘映像已写入文件夹“%@”，但无法读回以进行比较。请检查该文件夹所在的设备，然后重试。</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>用于光盘映像的文件夹“%@”不存在。请创建该文件夹，或选择其他光驱。</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>无法将光盘映像写入文件夹“%@”：该文件夹为只读，或您无权更改。请选择其他文件夹，或更改其权限。</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>文件夹“%@”中没有足够的空间存放光盘映像。请腾出空间，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>无法将光盘映像写入文件夹“%@”（%@）。请检查该文件夹所在的设备，然后重试。</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>光盘映像需要 %@，但可用空间只有 %@（文件夹“%@”）。请腾出空间，或选择其他文件夹。</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>无法排布光盘内容。请移除最后添加的内容，然后重试。</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>无法为光盘设置名称。</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>“%@”与添加到列表时不同。请将其从列表中移除，重新添加，然后从头开始。</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>“%@”已不存在。请将其放回，或从列表中移除。</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>您没有读取“%@”的权限。请更改权限，或将其从列表中移除。</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>无法读取“%@”（%@）。请检查其所在的磁盘或网络，或将其从列表中移除。</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>这是指向不存在内容的链接。</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>这是指回自身的链接。</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>路径太长。请将其移到更上层的文件夹。</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>这是管道、套接字或设备，没有可刻录的内容。</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>这是指回其所在文件夹的链接。</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>这是指向某个文件夹的链接，该文件夹已在此多次出现。</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>此文件夹中没有歌曲。</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>这既不是文件也不是文件夹。</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>播放列表嵌套过多。</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>播放列表中没有列出任何文件。</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>播放列表中列出的文件过多。</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>这是网络地址。只能刻录此电脑上的文件。</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>无法读取播放列表（%@）。</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>该文件的名称像播放列表，但它不是播放列表。</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>正在查找光盘驱动器…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@，%@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>无法写入光驱“%@”中的光盘。该光盘已不能使用：请换一张新光盘重试，最好是其他品牌。</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>光驱“%@”的托盘已打开。请放入空白 CD，关闭托盘后重试。</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>光驱“%@”中的光盘已被取出或更换。请插入空白 CD 后重试。</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>光驱“%@”始终未就绪。请取出光盘，擦拭干净或换一张，然后重试。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>光驱“%@”中的光盘不可刻录。请插入空白 CD-R 或 CD-RW。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>光驱“%@”中的光盘有写保护。请换一张。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>光驱“%@”中光盘的空间比其标称的少。请使用其他品牌的光盘刻录。</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>光驱“%@”无法针对该光盘调整激光。请试用其他品牌的光盘。如果每张光盘都如此，可能是镜头脏了。</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>光驱“%@”因等待数据而中断，光盘已损坏。请关闭其他程序，换一张新光盘重试。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>无法写入光驱“%@”中光盘的扇区 %@。该光盘已不能使用：请换一张新光盘重试，最好是其他品牌。</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>光驱“%@”无法封闭光盘。其他光驱可能无法读取：请换一张新光盘重试。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>无法读取光驱“%@”中的光盘。请擦拭干净或换一张。</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>光驱“%@”报告自身故障。请关闭后重新打开。如果无效，请使用其他光驱。</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>与光驱“%@”的连接受到干扰。请检查线缆，将其直接连接到计算机，然后重试。</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>光驱“%@”拒绝以此处所需的方式写入。请使用其他光驱。</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>无法从光驱“%@”中取出光盘：另一个程序已将其锁定。</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>您无权使用光驱“%@”。请向管理员申请访问权限。</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>您无权使用光驱“%@”：它属于用户组“%@”。请管理员将您加入该组，然后重新登录。</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>另一个程序正在使用光驱“%@”。请等待其完成，或关闭该程序，然后重试。</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>程序 %@ 正在使用光驱“%@”。请等待其完成，或关闭该程序，然后重试。</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>光驱“%@”报告错误 (%@)。请重试；如果无效，请换一张光盘或使用其他光驱。</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>光驱“%@”已断开。请重新连接，并使用空白 CD 重新开始。</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>光驱“%@”没有响应。请关闭后重新打开，或重新连接。</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>无法使用光驱“%@”(%@)。</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>无法从光盘读回音轨 %@“%@”。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>光盘已写入，但无法校验：光驱“%@”已断开、没有响应，或光盘已被取出。请在播放器或计算机上检查光盘能否读取。</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>无法读回光盘的目录。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>无法从光盘读回“%@”。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>光驱“%@”中的光盘已写入，但结果不正确。请不要依赖这张光盘：将列表重新刻录到另一张光盘。</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>光驱“%@”无法打开托盘。请确认没有东西挡住托盘，然后重试。</translation>
    </message>
</context>
</TS>
