<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>Запись CD</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Проверка файлов…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Начало работы</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>Обработка: %@ (%d из %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>Запись «%@»</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>Аудио-CD</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>Запуск записи</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>Подготовка к записи</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>Осталось времени: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>Открытие дорожки %lu из %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>Запись дорожки %lu из %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>Закрытие дорожки %lu из %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>Закрытие сеанса</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>Завершение записи</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>Проверка диска</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>Теперь диск можно извлечь</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>Возможно, диск станет непригодным. Вы действительно хотите прервать запись?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>Занято времени: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>Занято места: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>Осталось времени: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>Осталось места: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>Превышение времени: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>Превышение объёма: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>Недостаточно места.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>Подключите привод компакт-дисков.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>Этот привод не может записывать компакт-диски.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>Проверка диска…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Без названия</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>Этот диск не пуст. Вставьте чистый диск.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>Вставьте чистый диск…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD с данными</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>Перетащите сюда музыкальные файлы</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Убрать из списка</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>Привод компакт-дисков не найден.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;Привод:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;Имя диска:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>Из&amp;влечь</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Очистить список</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Записать</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>Извлечь диск из привода</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>Убрать всё из списка</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>Записать список на диск</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>Тип записываемого диска</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>Тип диска</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>Список для записи</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>Занятый объём</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>Воспроизводится в проигрывателях и автомагнитолах. Вмещает около 80 минут музыки, до 99 песен, независимо от размера файлов.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>Хранит файлы и папки для компьютеров без изменений. Вмещает около 700&#xa0;МБ.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>Что потребуется</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>Чистый диск CD-R или CD-RW. Полоса показывает, насколько он будет заполнен; то, что не помещается, нужно убрать из списка.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>Привод не найден?</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>Проверьте кабель и питание и подождите несколько секунд. Привод, занятый другой программой, станет доступен здесь, только когда она будет закрыта.</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>кБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ТБ</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>ПБ</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>ЭБ</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>Б</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Б</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>Не удалось загрузить часть программы, которая воспроизводит песни. Установите программу заново.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>Не удаётся прочитать «%@» до конца: повреждён файл или диск, на котором он находится. Уберите его из списка или замените исправной копией и добавьте снова.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>Файла «%@» больше нет на прежнем месте. Верните его или уберите из списка.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>«%@» — уже не тот файл, который был добавлен. Уберите его из списка и добавьте снова.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>Файл «%@» стал короче, чем при добавлении: он обрезан или повреждён. Уберите его из списка или замените исправной копией и добавьте снова.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>В файле нет звука.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>Не удаётся прочитать (%@).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>Такого файла или папки нет.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>Не удаётся прочитать: у вас нет прав на открытие.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Это не файл.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>Это защищённый от копирования файл MP4, воспроизвести который может только проигрыватель его магазина.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>Это защищённый от копирования файл Windows Media, воспроизвести который может только проигрыватель его магазина.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>Это зашифрованная аудиокнига Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>Это не звуковой файл, или его начало повреждено.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Недостаточно памяти.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>В файле есть изображение, но нет звука.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>Файл обрезан: нет конца песни.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>Формат звука в файле неизвестен.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>Для звука в файле нет декодера (%@).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>Не удаётся декодировать звук в файле (%@).</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>Файл повреждён или обрезан.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>Не удаётся свести к двум каналы файла (всего каналов: %@).</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>Записывать нечего: список пуст. Сначала добавьте в него файлы.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>Наибольшее число песен на аудио-CD: %@, а в списке: %@. Уберите часть песен и запишите их на другой диск.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>Нет привода для записи. Подключите пишущий привод или выберите его.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>Привод «%@» отключён. Подключите его снова или выберите другой.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>Файлы ещё добавляются в список. Дождитесь окончания проверки и начните запись.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>Этот список уже записывается. Дождитесь, когда диск будет готов.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>Привод «%@» занят другим диском. Дождитесь окончания работы.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>Диск был готов до того, как запись удалось остановить. Его можно использовать.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>Произошла непредвиденная ошибка (%@). Повторите попытку; если ошибка появится снова, сообщите о ней.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>Список не помещается на диск: требуется %@, а на диске есть место для %@. Уберите что-нибудь из списка или вставьте диск большего объёма.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>Файла «%@» больше нет. Верните его или уберите из списка и повторите попытку.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>Не удаётся прочитать «%@» (%@). Проверьте файл и права доступа или уберите его из списка и повторите попытку.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Дорожка %@, «%@», записана на диск не так, как была отправлена. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Оглавление диска записано не так, как было отправлено. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Файл «%@» записан на диск не так, как был отправлен. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>Привод «%@» не может записывать компакт-диски. Выберите другой.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>В приводе «%@» нет диска. Вставьте чистый компакт-диск.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>В приводе «%@» не компакт-диск. Вставьте чистый компакт-диск.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>Диск в приводе «%@» не пуст. Извлеките его и вставьте чистый компакт-диск.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>Не удалось проверить файлы до конца (%@).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>Диск в «%@» не пуст. Извлеките его и вставьте чистый диск.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>Список не помещается на диск в «%@». Уберите что-нибудь из списка.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>Образ диска (%@)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>Длина файла «%@» не совпала с ожидаемой. Уберите его из списка, добавьте снова и начните сначала.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>Образ диска записан в папку «%@», но его не удалось прочитать для сравнения. Проверьте устройство, на котором находится папка, и повторите попытку.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>Папки «%@» для образа диска не существует. Создайте её или выберите другой привод.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>Не удаётся записать образ диска в папку «%@»: она доступна только для чтения, или у вас нет прав на её изменение. Выберите другую папку или измените права доступа.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>В папке «%@» недостаточно места для образа диска. Освободите место или выберите другую папку.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>Не удалось записать образ диска в папку «%@» (%@). Проверьте устройство, на котором находится папка, и повторите попытку.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>Для образа диска требуется %@, но свободно только %@ в папке «%@». Освободите место или выберите другую папку.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>Не удалось разместить содержимое диска. Уберите то, что добавили последним, и повторите попытку.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>Не удалось задать имя диска.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>Файл «%@» изменился после добавления в список. Уберите его из списка, добавьте снова и начните сначала.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>Файла «%@» больше нет. Верните его или уберите из списка.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>У вас нет прав на чтение «%@». Измените это или уберите файл из списка.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>Не удаётся прочитать «%@» (%@). Проверьте диск или сеть, где находится файл, или уберите его из списка.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>Это ссылка на то, чего нет.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>Это ссылка, которая ведёт на саму себя.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>Слишком длинный путь. Переместите в папку ближе к корню.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>Это канал, сокет или устройство: записывать нечего.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>Это ссылка на папку, в которой она сама находится.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>Это ссылка на папку, которая встречается здесь уже много раз.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>В этой папке нет песен.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>Это не файл и не папка.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>Слишком много вложенных друг в друга плейлистов.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>В плейлисте не указано ни одного файла.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>В плейлистах указано слишком много файлов.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>Это сетевой адрес. Записать можно только файлы с этого компьютера.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>Не удаётся прочитать плейлист (%@).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>Файл назван как плейлист, но им не является.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>Поиск приводов компакт-дисков…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@, %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Не удалось записать диск в приводе «%@». Он больше непригоден: повторите с новым диском, лучше другой марки.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>Лоток привода «%@» открыт. Вставьте чистый компакт-диск, закройте лоток и повторите попытку.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>Диск был извлечён из привода «%@» или заменён другим. Вставьте чистый компакт-диск и повторите попытку.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>Привод «%@» не переходит в состояние готовности. Извлеките диск, протрите его или возьмите другой и повторите попытку.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>Диск в приводе «%@» не предназначен для записи. Вставьте чистый CD-R или CD-RW.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>Диск в приводе «%@» защищён от записи. Вставьте другой.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>На диске в приводе «%@» меньше места, чем было указано. Запишите на диск другой марки.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>Привод «%@» не смог настроить лазер на этот диск. Попробуйте диск другой марки. Если так происходит с каждым диском, возможно, загрязнена линза.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>Приводу «%@» пришлось ждать данных, и диск испорчен. Закройте другие программы и повторите с новым диском.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>Не удалось записать диск в приводе «%@»: ошибка в секторе %@. Он больше непригоден: повторите с новым диском, лучше другой марки.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>Привод «%@» не смог закрыть диск. Другие приводы, возможно, не прочитают его: повторите с новым диском.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>Не удалось прочитать диск в приводе «%@». Протрите его или возьмите другой.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>Привод «%@» сообщает о собственной неисправности. Выключите его и включите снова. Если это не поможет, используйте другой привод.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>Связь с приводом «%@» была нарушена. Проверьте кабель, подключите привод прямо к компьютеру и повторите попытку.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>Привод «%@» отказывается записывать нужным способом. Используйте другой привод.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>Диск нельзя извлечь из привода «%@»: его заблокировала другая программа.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>У вас нет прав на использование привода «%@». Попросите доступ у администратора.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>У вас нет прав на использование привода «%@»: он принадлежит группе «%@». Попросите администратора добавить вас в эту группу, затем войдите в систему заново.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Привод «%@» используется другой программой. Дождитесь, пока она закончит работу, или закройте её и повторите попытку.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>Программа %@ использует привод «%@». Дождитесь, пока она закончит работу, или закройте её и повторите попытку.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>Привод «%@» сообщает об ошибке (%@). Повторите попытку; если не поможет, возьмите другой диск или другой привод.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>Привод «%@» был отключён. Подключите его снова и начните заново с чистым компакт-диском.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>Привод «%@» не отвечает. Выключите его и включите снова или переподключите.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>Невозможно использовать привод «%@» (%@).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Дорожку %@, «%@», не удаётся прочитать с записанного диска. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>Диск записан, но проверить его не удалось: привод «%@» отключён, не отвечает или остался без диска. Проверьте на проигрывателе или компьютере, читается ли диск.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Оглавление записанного диска не удаётся прочитать. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Файл «%@» не удаётся прочитать с записанного диска. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>Диск в приводе «%@» записан, но не так, как должен быть. Не полагайтесь на этот диск: запишите список ещё раз на другой.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>Приводу «%@» не удалось открыть лоток. Убедитесь, что ему ничто не мешает, и повторите попытку.</translation>
    </message>
</context>
</TS>
