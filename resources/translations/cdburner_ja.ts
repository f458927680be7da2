<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>CD ライター</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>開始しています</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>処理中: %@ (%d/%d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>「%@」に書き込んでいます</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>オーディオ CD</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>書き込みを開始しています</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>書き込みを準備しています</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>残り時間 - %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>トラック %lu/%lu を開いています</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>トラック %lu/%lu を書き込んでいます</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>トラック %lu/%lu を閉じています</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>セッションを閉じています</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>書き込みの完了</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>CD を検証しています</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>CD を取り出せます</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>ディスクが使えなくなる可能性があります。本当に中止しますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>使用時間: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>使用容量: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>残り時間: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>空き容量: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>超過時間: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>超過容量: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>空き容量が足りません。</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>ディスクドライブを接続してください。</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>このドライブでは CD に書き込めません。</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>ディスクを確認しています…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>この CD は空ではありません。空の CD を入れてください。</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>空のディスクを入れてください…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>データ CD</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>音楽ファイルをここにドラッグ</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>リストから削除</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>ディスクドライブが見つかりません。</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>ドライブ(&amp;D):</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>ディスク名(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>取り出し(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>リストを空に(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>書き込み(&amp;B)</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>ドライブからディスクを取り出します</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>リストからすべて削除します</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>リストをディスクに書き込みます</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>書き込むディスクの種類</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>ディスクの種類</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>書き込みリスト</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>使用容量</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>CD プレーヤーや車で再生できます。ファイルの大きさに関係なく、約 80 分、99 曲まで入ります。</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>ファイルとフォルダーをコンピューター用にそのまま保存します。約 700&#xa0;MB 入ります。</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>必要なもの</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>空の CD-R または CD-RW。どこまで埋まるかがバーに表示されます。入りきらないものはリストから削除してください。</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>ドライブが見つからないときは</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>ケーブルと電源を確認し、数秒待ってください。ほかのプログラムが使用中のドライブは、そのプログラムを終了するまでここでは使えません。</translation>
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
        <translation>バイト</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>曲を再生する部分を読み込めません。プログラムをもう一度インストールしてください。</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>「%@」を最後まで読み取れません。ファイルか、それが入っているディスクが壊れています。リストから削除するか、正常なコピーに置き換えて追加し直してください。</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>「%@」が元の場所にありません。元に戻すか、リストから削除してください。</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>「%@」は追加したときのファイルと異なります。リストから削除して、追加し直してください。</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>「%@」は追加したときより短くなっています。途中で切れたか、壊れています。リストから削除するか、正常なコピーに置き換えて追加し直してください。</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>音声が含まれていません。</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>読み取れません (%@)。</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>そのようなファイルやフォルダーはありません。</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>読み取れません。開く権限がありません。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>コピー防止された MP4 ファイルで、販売元のプレーヤーでしか再生できません。</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>コピー防止された Windows Media ファイルで、販売元のプレーヤーでしか再生できません。</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>暗号化された Audible のオーディオブックです。</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>空のファイルです。</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>音声ファイルではないか、先頭が壊れています。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリーが足りません。</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>映像はありますが、音声がありません。</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>途中で切れています。曲の終わりがありません。</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>音声の形式が不明です。</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>音声のデコーダーがありません (%@)。</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>音声 (%@) をデコードできません。</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>壊れているか、途中で切れています。</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>%@ チャンネルの音声を 2 チャンネルに変換できません。</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>書き込むものがありません。リストが空です。まずファイルを追加してください。</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>オーディオ CD に入るのは %@ 曲までですが、リストには %@ 曲あります。いくつか削除して、別のディスクに書き込んでください。</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>書き込みに使うドライブがありません。CD ライターを接続するか、選択してください。</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>ドライブ「%@」の接続が切れました。接続し直すか、別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>ファイルをリストに追加しています。確認が終わるまで待ってから書き込んでください。</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>このリストはすでに書き込み中です。ディスクが完成するまでお待ちください。</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>ドライブ「%@」は別のディスクを処理しています。終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>書き込みを中止する前にディスクが完成しました。このディスクは使用できます。</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>予期しない問題が発生しました (%@)。もう一度試してください。再び発生する場合は、ご報告ください。</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>リストがディスクに入りません。必要な容量は %@ ですが、ディスクに入るのは %@ です。リストから何か削除するか、容量の大きいディスクを入れてください。</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>「%@」がなくなっています。元に戻すか、リストから削除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>「%@」を読み取れません (%@)。ファイルとそのアクセス権を確認するか、リストから削除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>トラック %@「%@」が、送られたとおりにディスクに記録されていません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>ディスクの目次が、送られたとおりに記録されていません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>「%@」が、送られたとおりにディスクに記録されていません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>ドライブ「%@」では CD に書き込めません。別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>ドライブ「%@」にディスクが入っていません。空の CD を入れてください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>ドライブ「%@」のディスクは CD ではありません。空の CD を入れてください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>ドライブ「%@」のディスクは空ではありません。取り出して、空の CD を入れてください。</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>ファイルを最後まで確認できませんでした (%@)。</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>「%@」のディスクは空ではありません。取り出して、空のディスクを入れてください。</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>リストが「%@」のディスクに入りません。リストから何か削除してください。</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>ディスクイメージ (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>「%@」の長さが予想と異なります。リストから削除し、追加し直して、最初からやり直してください。</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>ディスクイメージをフォルダー「%@」に書き込みましたが、比較のために読み戻せませんでした。フォルダーのあるデバイスを確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>ディスクイメージ用のフォルダー「%@」がありません。作成するか、別のドライブを選択してください。</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>ディスクイメージをフォルダー「%@」に書き込めません。読み取り専用か、変更する権限がありません。別のフォルダーを選択するか、アクセス権を変更してください。</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>フォルダー「%@」には、ディスクイメージのための空き容量が足りません。空きを作るか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>ディスクイメージをフォルダー「%@」に書き込めませんでした (%@)。フォルダーのあるデバイスを確認して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>ディスクイメージには %@ 必要ですが、空きは %@ しかありません (フォルダー「%@」)。空きを作るか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>ディスクの内容を配置できませんでした。最後に追加したものを削除して、もう一度試してください。</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>ディスクに名前を付けられませんでした。</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>「%@」はリストに追加したときから変わっています。リストから削除し、追加し直して、最初からやり直してください。</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>「%@」がなくなっています。元に戻すか、リストから削除してください。</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>「%@」を読み取る権限がありません。権限を変更するか、リストから削除してください。</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>「%@」を読み取れません (%@)。それが入っているディスクやネットワークを確認するか、リストから削除してください。</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>存在しないものへのリンクです。</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>自分自身に戻るリンクです。</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>パスが長すぎます。上の階層のフォルダーに移動してください。</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>パイプ、ソケット、またはデバイスのため、書き込む内容がありません。</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>自分が入っているフォルダーに戻るリンクです。</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>すでに何度もここに含まれているフォルダーへのリンクです。</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>このフォルダーには曲がありません。</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>ファイルでもフォルダーでもありません。</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>プレイリストの入れ子が多すぎます。</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>プレイリストにファイルが記載されていません。</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>プレイリストに記載されたファイルが多すぎます。</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>ネットワーク上のアドレスです。書き込めるのはこのコンピューターにあるファイルだけです。</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>プレイリストを読み取れません (%@)。</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>ファイル名はプレイリストのようですが、プレイリストではありません。</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>ディスクドライブを探しています…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@、%@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>ドライブ「%@」のディスクに書き込めませんでした。このディスクはもう使えません。別のメーカーの新しいディスクでやり直してください。</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>ドライブ「%@」のトレイが開いています。空の CD を入れて閉じてから、やり直してください。</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>ドライブ「%@」からディスクが取り出されたか、別のディスクが入れられました。空の CD を入れて、やり直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>ドライブ「%@」の準備ができません。ディスクを取り出し、拭くか別のものに替えて、やり直してください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>ドライブ「%@」のディスクには書き込めません。空の CD-R または CD-RW を入れてください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>ドライブ「%@」のディスクは書き込み禁止です。別のディスクを入れてください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>ドライブ「%@」のディスクの容量が、表示より少なくなっています。別のメーカーのディスクに書き込んでください。</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>ドライブ「%@」はレーザーをディスクに合わせて調整できませんでした。別のメーカーのディスクを試してください。どのディスクでも起こる場合は、レンズが汚れている可能性があります。</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>ドライブ「%@」へのデータが間に合わず、ディスクは使えなくなりました。ほかのプログラムを閉じて、新しいディスクでやり直してください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>ドライブ「%@」のディスクのセクター %@ に書き込めませんでした。このディスクはもう使えません。別のメーカーの新しいディスクでやり直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>ドライブ「%@」はディスクを閉じられませんでした。ほかのドライブでは読めない可能性があります。新しいディスクでやり直してください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>ドライブ「%@」のディスクを読み取れませんでした。拭くか、別のディスクに替えてください。</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>ドライブ「%@」が自身の故障を報告しています。電源を入れ直してください。直らない場合は、別のドライブを使ってください。</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>ドライブ「%@」との接続に異常がありました。ケーブルを確かめ、コンピューターに直接つないで、やり直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>ドライブ「%@」は、ここで必要な方式での書き込みを受け付けません。別のドライブを使ってください。</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>ドライブ「%@」からディスクを取り出せません。別のプログラムがロックしています。</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>ドライブ「%@」を使う権限がありません。管理者にアクセス権を求めてください。</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>ドライブ「%@」を使う権限がありません。このドライブはグループ「%@」に属しています。管理者にこのグループへの追加を依頼し、ログインし直してください。</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>ドライブ「%@」は別のプログラムが使用しています。終わるまで待つか、そのプログラムを閉じてから、やり直してください。</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>プログラム %@ がドライブ「%@」を使用しています。終わるまで待つか、そのプログラムを閉じてから、やり直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>ドライブ「%@」がエラー (%@) を報告しました。やり直してください。直らない場合は、別のディスクか別のドライブを使ってください。</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>ドライブ「%@」の接続が切れました。もう一度つなぎ、空の CD で最初からやり直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>ドライブ「%@」が応答しません。電源を入れ直すか、つなぎ直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>ドライブ「%@」は使用できません (%@)。</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>トラック %@「%@」をディスクから読み戻せません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>ディスクは書き込まれましたが、検証できませんでした。ドライブ「%@」が取り外されたか、応答しないか、ディスクが取り出されました。プレーヤーやコンピューターで読めるか確かめてください。</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>ディスクの目次を読み戻せません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>「%@」をディスクから読み戻せません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>ドライブ「%@」のディスクは書き込まれましたが、正しい状態になっていません。このディスクは信頼せず、別のディスクにリストを書き込み直してください。</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>ドライブ「%@」のトレイを開けませんでした。妨げになるものがないことを確認して、もう一度お試しください。</translation>
    </message>
</context>
</TS>
