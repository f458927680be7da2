<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>CD Burner</source>
        <translation>حارق الأقراص</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>يجري فحص الملفات…</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>يجري البدء</translation>
    </message>
    <message>
        <source>Processing: %@ (%d of %d)</source>
        <translation>تجري المعالجة: &#x2068;%@&#x2069; (%d من %d)</translation>
    </message>
    <message>
        <source>Burning '%@'</source>
        <translation>يجري حرق «&#x2068;%@&#x2069;»</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>قرص صوتي</translation>
    </message>
    <message>
        <source>Start burning</source>
        <translation>يجري بدء الحرق</translation>
    </message>
    <message>
        <source>Prepare burning</source>
        <translation>يجري التحضير للحرق</translation>
    </message>
    <message>
        <source>Left time - %@</source>
        <translation>الوقت المتبقي: %@</translation>
    </message>
    <message>
        <source>Opening track %lu of %lu</source>
        <translation>يجري فتح المقطع %lu من %lu</translation>
    </message>
    <message>
        <source>Writing track %lu of %lu</source>
        <translation>تجري كتابة المقطع %lu من %lu</translation>
    </message>
    <message>
        <source>Closing track %lu of %lu</source>
        <translation>يجري إغلاق المقطع %lu من %lu</translation>
    </message>
    <message>
        <source>Closing session</source>
        <translation>يجري إغلاق الجلسة</translation>
    </message>
    <message>
        <source>Finish burning</source>
        <translation>إنهاء الحرق</translation>
    </message>
    <message>
        <source>Verifying CD</source>
        <translation>يجري التحقق من القرص</translation>
    </message>
    <message>
        <source>Eject CD</source>
        <translation>يمكنك الآن إخراج القرص</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>The disc may not be usable anymore. Are you sure you want to cancel?</source>
        <translation>قد يصبح القرص غير صالح للاستعمال. هل تريد الإلغاء بالتأكيد؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Used Time: %@</source>
        <translation>المدة المستخدمة: %@</translation>
    </message>
    <message>
        <source>Used Size: %@</source>
        <translation>المساحة المستخدمة: %@</translation>
    </message>
    <message>
        <source>Remaining Time: %@</source>
        <translation>المدة المتبقية: %@</translation>
    </message>
    <message>
        <source>Remaining Space: %@</source>
        <translation>المساحة المتبقية: %@</translation>
    </message>
    <message>
        <source>Beyond Time: %@</source>
        <translation>المدة الزائدة: %@</translation>
    </message>
    <message>
        <source>Beyond Size: %@</source>
        <translation>المساحة الزائدة: %@</translation>
    </message>
    <message>
        <source>Insufficient storage space.&#x9;</source>
        <translation>مساحة التخزين غير كافية.</translation>
    </message>
    <message>
        <source>You should connect a disc drive!</source>
        <translation>يُرجى توصيل محرك أقراص.</translation>
    </message>
    <message>
        <source>This disc drive can not support burning!</source>
        <translation>لا يدعم محرك الأقراص هذا الحرق.</translation>
    </message>
    <message>
        <source>Checking disk...</source>
        <translation>يجري فحص القرص…</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>This is not a blank CD, please insert a blank one!</source>
        <translation>هذا القرص ليس فارغًا. يُرجى إدخال قرص فارغ.</translation>
    </message>
    <message>
        <source>Please insert a blank disc...</source>
        <translation>يُرجى إدخال قرص فارغ…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>قرص بيانات</translation>
    </message>
    <message>
        <source>Drag music files here</source>
        <translation>اسحب ملفات الموسيقى إلى هنا</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>إزالة من القائمة</translation>
    </message>
    <message>
        <source>Not found a disc drive.</source>
        <translation>لم يُعثر على محرك أقراص.</translation>
    </message>
    <message>
        <source>Disc &amp;drive:</source>
        <translation>&amp;محرك الأقراص:</translation>
    </message>
    <message>
        <source>Volume &amp;name:</source>
        <translation>&amp;اسم القرص:</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>إ&amp;خراج</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>إ&amp;فراغ القائمة</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;حرق</translation>
    </message>
    <message>
        <source>Eject the disc from the drive</source>
        <translation>إخراج القرص من المحرك</translation>
    </message>
    <message>
        <source>Remove everything from the list</source>
        <translation>إزالة كل شيء من القائمة</translation>
    </message>
    <message>
        <source>Burn the list to the disc</source>
        <translation>حرق القائمة على القرص</translation>
    </message>
    <message>
        <source>The type of disc to burn</source>
        <translation>نوع القرص المراد حرقه</translation>
    </message>
    <message>
        <source>Disc type</source>
        <translation>نوع القرص</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Burn list</source>
        <translation>قائمة الحرق</translation>
    </message>
    <message>
        <source>Used capacity</source>
        <translation>السعة المستخدمة</translation>
    </message>
    <message>
        <source>Plays in CD players and cars. Holds about 80 minutes of music, up to 99 songs, however large their files are.</source>
        <translation>يعمل في مشغلات الأقراص وفي السيارات. يتسع لنحو 80 دقيقة من الموسيقى وحتى 99 أغنية، مهما كان حجم ملفاتها.</translation>
    </message>
    <message>
        <source>Keeps files and folders for computers, just as they are. Holds about 700 MB.</source>
        <translation>يحفظ الملفات والمجلدات لأجهزة الكمبيوتر كما هي. يتسع لنحو 700&#xa0;ميغابايت.</translation>
    </message>
    <message>
        <source>What you need</source>
        <translation>ما تحتاج إليه</translation>
    </message>
    <message>
        <source>A blank CD-R or CD-RW. The bar shows how much of it is filled; what does not fit has to leave the list.</source>
        <translation>قرص CD-R أو CD-RW فارغ. يُظهر الشريط مقدار ما سيمتلئ منه؛ وما لا يتسع له القرص يجب إزالته من القائمة.</translation>
    </message>
    <message>
        <source>The drive is not found?</source>
        <translation>لم يُعثر على المحرك؟</translation>
    </message>
    <message>
        <source>Check its cable and power, then wait a few seconds. A drive that another program uses can not be used here until that program is closed.</source>
        <translation>افحص الكابل ومصدر الطاقة، ثم انتظر بضع ثوانٍ. المحرك الذي يستخدمه برنامج آخر لا يمكن استخدامه هنا حتى يُغلق ذلك البرنامج.</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>كيلوبايت</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>ميغابايت</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>غيغابايت</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>تيرابايت</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>بيتابايت</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>إكسابايت</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>بايت</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>بايت</translation>
    </message>
    <message>
        <source>The part of this program that plays songs cannot be loaded. Install the program again.</source>
        <translation>تعذّر تحميل الجزء المسؤول عن تشغيل الأغاني في هذا البرنامج. أعد تثبيت البرنامج.</translation>
    </message>
    <message>
        <source>“%@” cannot be read to its end: the file is damaged, or the disk it lies on is. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>تعذّرت قراءة «&#x2068;%@&#x2069;» حتى النهاية: الملف، أو القرص الذي يوجد عليه، تالف. أزله من القائمة، أو ضع مكانه نسخة سليمة وأضفه من جديد.</translation>
    </message>
    <message>
        <source>“%@” is no longer where it was. Put it back, or take it off the list.</source>
        <translation>لم يعد «&#x2068;%@&#x2069;» في مكانه. أعده إليه، أو أزله من القائمة.</translation>
    </message>
    <message>
        <source>“%@” is not the file it was when it was added. Take it off the list and add it again.</source>
        <translation>لم يعد «&#x2068;%@&#x2069;» الملف نفسه الذي أُضيف. أزله من القائمة وأضفه من جديد.</translation>
    </message>
    <message>
        <source>“%@” is shorter than it was when it was added: it has been cut or damaged. Take it off the list, or put a good copy in its place and add it again.</source>
        <translation>أصبح «&#x2068;%@&#x2069;» أقصر مما كان عند إضافته: لقد اقتُطع أو تلف. أزله من القائمة، أو ضع مكانه نسخة سليمة وأضفه من جديد.</translation>
    </message>
    <message>
        <source>There is no sound in it.</source>
        <translation>لا يحتوي على صوت.</translation>
    </message>
    <message>
        <source>It cannot be read (%@).</source>
        <translation>تعذّرت قراءته (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>There is no such file or folder.</source>
        <translation>لا يوجد ملف أو مجلد كهذا.</translation>
    </message>
    <message>
        <source>It cannot be read: you have no permission to open it.</source>
        <translation>تعذّرت قراءته: ليس لديك إذن بفتحه.</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>It is a copy-protected MP4 file, which only its shop's own player can play.</source>
        <translation>هذا ملف MP4 محمي من النسخ، ولا يمكن تشغيله إلا بمشغل متجره.</translation>
    </message>
    <message>
        <source>It is a copy-protected Windows Media file, which only its shop's own player can play.</source>
        <translation>هذا ملف Windows Media محمي من النسخ، ولا يمكن تشغيله إلا بمشغل متجره.</translation>
    </message>
    <message>
        <source>It is an encrypted book from Audible.</source>
        <translation>هذا كتاب صوتي مشفّر من Audible.</translation>
    </message>
    <message>
        <source>It is empty.</source>
        <translation>الملف فارغ.</translation>
    </message>
    <message>
        <source>It is not a sound file, or its beginning is damaged.</source>
        <translation>هذا ليس ملفًا صوتيًا، أو أن بدايته تالفة.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>الذاكرة غير كافية.</translation>
    </message>
    <message>
        <source>It has pictures, but no sound.</source>
        <translation>يحتوي على صور، لكن بلا صوت.</translation>
    </message>
    <message>
        <source>It is cut off: the end of the song is missing.</source>
        <translation>الملف مقتطع: نهاية الأغنية مفقودة.</translation>
    </message>
    <message>
        <source>Its sound is in a format that is not known here.</source>
        <translation>صوته بتنسيق غير معروف.</translation>
    </message>
    <message>
        <source>There is no decoder for its sound (%@).</source>
        <translation>لا يوجد مفكّك ترميز لصوته (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>Its sound (%@) cannot be decoded.</source>
        <translation>تعذّر فك ترميز صوته (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>It is damaged or cut off.</source>
        <translation>الملف تالف أو مقتطع.</translation>
    </message>
    <message>
        <source>Its %@ channels cannot be mixed down to two.</source>
        <translation>تعذّر دمج قنواته (عددها: %@) في قناتين.</translation>
    </message>
    <message>
        <source>There is nothing to burn: the list is empty. Add files to it first.</source>
        <translation>لا يوجد ما يُحرق: القائمة فارغة. أضف إليها ملفات أولًا.</translation>
    </message>
    <message>
        <source>An audio CD takes %@ songs at most, and the list has %@. Remove some of them and burn them on another disc.</source>
        <translation>أقصى عدد من الأغاني على القرص الصوتي هو %@، وعددها في القائمة %@. أزل بعضها واحرقه على قرص آخر.</translation>
    </message>
    <message>
        <source>There is no drive to burn with. Connect a CD burner, or choose one.</source>
        <translation>لا يوجد محرك للحرق. صِل محرك أقراص حارقًا، أو اختر واحدًا.</translation>
    </message>
    <message>
        <source>The drive “%@” is not connected any more. Connect it again, or choose another one.</source>
        <translation>لم يعد المحرك «&#x2068;%@&#x2069;» متصلًا. صِله من جديد، أو اختر غيره.</translation>
    </message>
    <message>
        <source>Files are still being added to the list. Wait until they have been checked, then burn.</source>
        <translation>ما زالت الملفات تُضاف إلى القائمة. انتظر حتى ينتهي فحصها، ثم ابدأ الحرق.</translation>
    </message>
    <message>
        <source>The list is being burned already. Wait until that disc is finished.</source>
        <translation>القائمة قيد الحرق بالفعل. انتظر حتى يكتمل ذلك القرص.</translation>
    </message>
    <message>
        <source>The drive “%@” is busy with another disc. Wait until it has finished.</source>
        <translation>المحرك «&#x2068;%@&#x2069;» مشغول بقرص آخر. انتظر حتى ينتهي.</translation>
    </message>
    <message>
        <source>The disc was complete before the burn could be stopped. It can be used.</source>
        <translation>اكتمل القرص قبل أن يمكن إيقاف الحرق. يمكن استخدامه.</translation>
    </message>
    <message>
        <source>Something unexpected went wrong (%@). Try again; if it happens again, please report it.</source>
        <translation>حدث خطأ غير متوقع (&#x2068;%@&#x2069;). أعد المحاولة؛ وإذا تكرر الخطأ فيُرجى الإبلاغ عنه.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc: it needs %@, and the disc has room for %@. Remove something from the list, or insert a larger disc.</source>
        <translation>لا تتسع للقائمة مساحة القرص: تحتاج إلى &#x2068;%@&#x2069;، والقرص يتسع لـ &#x2068;%@&#x2069;. أزل شيئًا من القائمة، أو أدخل قرصًا أكبر.</translation>
    </message>
    <message>
        <source>“%@” is not there any more. Put it back, or remove it from the list, then try again.</source>
        <translation>لم يعد «&#x2068;%@&#x2069;» موجودًا. أعده إلى مكانه، أو أزله من القائمة، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the file and its permissions, or remove it from the list, then try again.</source>
        <translation>تعذّرت قراءة «&#x2068;%@&#x2069;» (&#x2068;%@&#x2069;). افحص الملف وأذوناته، أو أزله من القائمة، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Track %@, “%@”, is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>المقطع %@، «&#x2068;%@&#x2069;»، ليس على القرص كما أُرسل. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>The table of contents of the disc is not as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>فهرس محتويات القرص ليس كما أُرسل. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>“%@” is not on the disc as it was sent. Do not rely on this disc: burn the list again on another one.</source>
        <translation>ليس «&#x2068;%@&#x2069;» على القرص كما أُرسل. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot write CDs. Choose another one.</source>
        <translation>لا يمكن للمحرك «&#x2068;%@&#x2069;» حرق الأقراص. اختر غيره.</translation>
    </message>
    <message>
        <source>There is no disc in the drive “%@”. Insert a blank CD.</source>
        <translation>لا يوجد قرص في المحرك «&#x2068;%@&#x2069;». أدخل قرصًا مضغوطًا فارغًا.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not a CD. Insert a blank CD.</source>
        <translation>القرص الموجود في المحرك «&#x2068;%@&#x2069;» ليس قرصًا مضغوطًا. أدخل قرصًا مضغوطًا فارغًا.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is not blank. Eject it and insert a blank CD.</source>
        <translation>القرص الموجود في المحرك «&#x2068;%@&#x2069;» ليس فارغًا. أخرجه وأدخل قرصًا مضغوطًا فارغًا.</translation>
    </message>
    <message>
        <source>The files could not be checked to the end (%@).</source>
        <translation>تعذّر إكمال فحص الملفات (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>The disc in “%@” is not blank. Eject it and insert a blank disc.</source>
        <translation>القرص الموجود في «&#x2068;%@&#x2069;» ليس فارغًا. أخرجه وأدخل قرصًا فارغًا.</translation>
    </message>
    <message>
        <source>The list does not fit on the disc in “%@”. Remove something from the list.</source>
        <translation>لا تتسع للقائمة مساحة القرص الموجود في «&#x2068;%@&#x2069;». أزل شيئًا من القائمة.</translation>
    </message>
    <message>
        <source>Disc image (%@)</source>
        <translation>صورة قرص (&#x2068;%@&#x2069;)</translation>
    </message>
    <message>
        <source>“%@” turned out to have another length than expected. Remove it from the list, add it again and start over.</source>
        <translation>تبيّن أن طول «&#x2068;%@&#x2069;» يختلف عن المتوقع. أزله من القائمة، وأضفه من جديد، ثم ابدأ من البداية.</translation>
    </message>
    <message>
        <source>The disc image was written to the folder “%@”, but it could not be read back to compare it. Check the device that the folder is on, then try again.</source>
        <translation>كُتبت صورة القرص في المجلد «&#x2068;%@&#x2069;»، لكن تعذّرت إعادة قراءتها لمقارنتها. افحص الجهاز الذي يوجد عليه المجلد، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The folder “%@” for the disc image does not exist. Create it, or choose another drive.</source>
        <translation>المجلد «&#x2068;%@&#x2069;» المخصص لصورة القرص غير موجود. أنشئه، أو اختر محركًا آخر.</translation>
    </message>
    <message>
        <source>The disc image cannot be written to the folder “%@”: it is read-only, or you are not allowed to change it. Choose another folder, or change its permissions.</source>
        <translation>تعذّرت كتابة صورة القرص في المجلد «&#x2068;%@&#x2069;»: إنه للقراءة فقط، أو لا يُسمح لك بتغييره. اختر مجلدًا آخر، أو غيّر أذوناته.</translation>
    </message>
    <message>
        <source>There is not enough space for the disc image in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>لا توجد مساحة كافية لصورة القرص في المجلد «&#x2068;%@&#x2069;». وفّر مساحة فيه، أو اختر مجلدًا آخر.</translation>
    </message>
    <message>
        <source>The disc image could not be written to the folder “%@” (%@). Check the device that the folder is on, then try again.</source>
        <translation>تعذّرت كتابة صورة القرص في المجلد «&#x2068;%@&#x2069;» (&#x2068;%@&#x2069;). افحص الجهاز الذي يوجد عليه المجلد، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The disc image needs %@, but there are only %@ free in the folder “%@”. Make room there, or choose another folder.</source>
        <translation>تحتاج صورة القرص إلى &#x2068;%@&#x2069;، لكن لا يتوفر سوى &#x2068;%@&#x2069; في المجلد «&#x2068;%@&#x2069;». وفّر مساحة فيه، أو اختر مجلدًا آخر.</translation>
    </message>
    <message>
        <source>The contents of the disc could not be laid out. Remove what you added last and try again.</source>
        <translation>تعذّر ترتيب محتويات القرص. أزل آخر ما أضفته، ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The disc could not be given its name.</source>
        <translation>تعذّرت تسمية القرص.</translation>
    </message>
    <message>
        <source>“%@” is not the same as when it was added to the list. Remove it from the list, add it again, and start over.</source>
        <translation>لم يعد «&#x2068;%@&#x2069;» كما كان عند إضافته إلى القائمة. أزله من القائمة، وأضفه من جديد، ثم ابدأ من البداية.</translation>
    </message>
    <message>
        <source>“%@” is no longer there. Put it back, or remove it from the list.</source>
        <translation>لم يعد «&#x2068;%@&#x2069;» موجودًا. أعده إلى مكانه، أو أزله من القائمة.</translation>
    </message>
    <message>
        <source>You have no permission to read “%@”. Change that, or remove it from the list.</source>
        <translation>ليس لديك إذن بقراءة «&#x2068;%@&#x2069;». غيّر ذلك، أو أزله من القائمة.</translation>
    </message>
    <message>
        <source>“%@” cannot be read (%@). Check the disk or the network that it is on, or remove it from the list.</source>
        <translation>تعذّرت قراءة «&#x2068;%@&#x2069;» (&#x2068;%@&#x2069;). افحص القرص أو الشبكة التي يوجد عليها، أو أزله من القائمة.</translation>
    </message>
    <message>
        <source>It is a link to something that is not there.</source>
        <translation>هذا رابط إلى شيء غير موجود.</translation>
    </message>
    <message>
        <source>It is a link that leads back to itself.</source>
        <translation>هذا رابط يعود إلى نفسه.</translation>
    </message>
    <message>
        <source>Its path is too long. Move it to a folder nearer to the top.</source>
        <translation>مساره طويل جدًا. انقله إلى مجلد أقرب إلى الأعلى.</translation>
    </message>
    <message>
        <source>It is a pipe, a socket or a device and holds nothing to burn.</source>
        <translation>هذا أنبوب أو مقبس أو جهاز، ولا يحتوي على ما يُحرق.</translation>
    </message>
    <message>
        <source>It is a link back to a folder that it lies in.</source>
        <translation>هذا رابط يعود إلى مجلد يوجد هو فيه.</translation>
    </message>
    <message>
        <source>It is a link to a folder that is here many times already.</source>
        <translation>هذا رابط إلى مجلد موجود هنا مرات كثيرة بالفعل.</translation>
    </message>
    <message>
        <source>There are no songs in this folder.</source>
        <translation>لا توجد أغانٍ في هذا المجلد.</translation>
    </message>
    <message>
        <source>It is neither a file nor a folder.</source>
        <translation>هذا ليس ملفًا ولا مجلدًا.</translation>
    </message>
    <message>
        <source>Too many playlists inside each other.</source>
        <translation>قوائم التشغيل المتداخلة كثيرة جدًا.</translation>
    </message>
    <message>
        <source>The playlist names no files.</source>
        <translation>لا تذكر قائمة التشغيل أي ملفات.</translation>
    </message>
    <message>
        <source>The playlists name too many files.</source>
        <translation>تذكر قوائم التشغيل ملفات كثيرة جدًا.</translation>
    </message>
    <message>
        <source>It is an address on a network. Only files on this computer can be burned.</source>
        <translation>هذا عنوان على الشبكة. لا يمكن حرق سوى الملفات الموجودة على هذا الكمبيوتر.</translation>
    </message>
    <message>
        <source>The playlist cannot be read (%@).</source>
        <translation>تعذّرت قراءة قائمة التشغيل (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>The file is named like a playlist but is none.</source>
        <translation>اسم الملف كاسم قائمة تشغيل، لكنه ليس كذلك.</translation>
    </message>
    <message>
        <source>Looking for disc drives...</source>
        <translation>يجري البحث عن محركات الأقراص…</translation>
    </message>
    <message>
        <source>%@, %@</source>
        <translation>%@، %@</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>مدى التقدّم</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>تعذرت الكتابة على القرص الموجود في المحرك «&#x2068;%@&#x2069;». لم يعد القرص صالحًا للاستخدام: حاول مرة أخرى بقرص جديد، ويفضل أن يكون من علامة أخرى.</translation>
    </message>
    <message>
        <source>The tray of the drive “%@” is open. Put a blank CD in, close it, and try again.</source>
        <translation>درج المحرك «&#x2068;%@&#x2069;» مفتوح. ضع قرصًا مضغوطًا فارغًا، وأغلق الدرج، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The disc was taken out of the drive “%@”, or another one was put in. Insert a blank CD, and try again.</source>
        <translation>أُخرج القرص من المحرك «&#x2068;%@&#x2069;»، أو أُدخل قرص آخر. أدخل قرصًا مضغوطًا فارغًا وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The drive “%@” does not become ready. Take the disc out, clean it or take another one, and try again.</source>
        <translation>لا يصبح المحرك «&#x2068;%@&#x2069;» جاهزًا. أخرج القرص ونظفه أو استخدم قرصًا آخر، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” cannot be recorded. Insert a blank CD-R or CD-RW.</source>
        <translation>القرص الموجود في المحرك «&#x2068;%@&#x2069;» غير قابل للتسجيل. أدخل قرص CD-R أو CD-RW فارغًا.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” is protected against writing. Insert another one.</source>
        <translation>القرص الموجود في المحرك «&#x2068;%@&#x2069;» محمي ضد الكتابة. أدخل قرصًا آخر.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” has less room than it said. Burn on a disc of another make.</source>
        <translation>المساحة على القرص الموجود في المحرك «&#x2068;%@&#x2069;» أقل مما ذكر. احرق على قرص من علامة أخرى.</translation>
    </message>
    <message>
        <source>The drive “%@” could not adjust its laser to the disc. Try a disc of another make. If this happens with every disc, the lens may be dirty.</source>
        <translation>تعذر على المحرك «&#x2068;%@&#x2069;» ضبط الليزر على القرص. جرب قرصًا من علامة أخرى. إذا حدث ذلك مع كل قرص، فقد تكون العدسة متسخة.</translation>
    </message>
    <message>
        <source>The drive “%@” had to wait for data, and the disc is spoilt. Close other programs, and try again with a new disc.</source>
        <translation>اضطر المحرك «&#x2068;%@&#x2069;» إلى انتظار البيانات، فتلف القرص. أغلق البرامج الأخرى وحاول مرة أخرى بقرص جديد.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be written at sector %@. It cannot be used any more: try again with a new one, best of another make.</source>
        <translation>تعذرت الكتابة على القرص الموجود في المحرك «&#x2068;%@&#x2069;» عند القطاع &#x2068;%@&#x2069;. لم يعد القرص صالحًا للاستخدام: حاول مرة أخرى بقرص جديد، ويفضل أن يكون من علامة أخرى.</translation>
    </message>
    <message>
        <source>The drive “%@” could not close the disc. Other drives may not be able to read it: try again with a new one.</source>
        <translation>تعذر على المحرك «&#x2068;%@&#x2069;» إغلاق القرص. قد لا تتمكن محركات أخرى من قراءته: حاول مرة أخرى بقرص جديد.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” could not be read. Clean it, or take another one.</source>
        <translation>تعذرت قراءة القرص الموجود في المحرك «&#x2068;%@&#x2069;». نظفه أو استخدم قرصًا آخر.</translation>
    </message>
    <message>
        <source>The drive “%@” reports a fault of its own. Switch it off and on again. If that does not help, use another drive.</source>
        <translation>يبلغ المحرك «&#x2068;%@&#x2069;» عن عطل فيه. أطفئه ثم شغله من جديد. إذا لم يفد ذلك، فاستخدم محركًا آخر.</translation>
    </message>
    <message>
        <source>The connection to the drive “%@” was disturbed. Check its cable, connect it directly to the computer, and try again.</source>
        <translation>اضطرب الاتصال بالمحرك «&#x2068;%@&#x2069;». افحص الكبل، وصله بالحاسوب مباشرة، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The drive “%@” refuses to write in the way that is needed here. Use another drive.</source>
        <translation>يرفض المحرك «&#x2068;%@&#x2069;» الكتابة بالطريقة المطلوبة هنا. استخدم محركًا آخر.</translation>
    </message>
    <message>
        <source>The disc cannot be taken out of the drive “%@”: another program has locked it in.</source>
        <translation>لا يمكن إخراج القرص من المحرك «&#x2068;%@&#x2069;»: برنامج آخر أقفله.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”. Ask an administrator for access to it.</source>
        <translation>غير مسموح لك باستخدام المحرك «&#x2068;%@&#x2069;». اطلب من المسؤول منحك حق الوصول إليه.</translation>
    </message>
    <message>
        <source>You are not allowed to use the drive “%@”: it belongs to the group “%@”. Ask an administrator to add you to this group, then log in again.</source>
        <translation>غير مسموح لك باستخدام المحرك «&#x2068;%@&#x2069;»: فهو يتبع المجموعة «&#x2068;%@&#x2069;». اطلب من المسؤول إضافتك إلى هذه المجموعة، ثم سجل الدخول من جديد.</translation>
    </message>
    <message>
        <source>Another program uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>يستخدم برنامج آخر المحرك «&#x2068;%@&#x2069;». انتظر حتى ينتهي أو أغلقه، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The program %@ uses the drive “%@”. Wait until it has finished, or close it, then try again.</source>
        <translation>يستخدم البرنامج &#x2068;%@&#x2069; المحرك «&#x2068;%@&#x2069;». انتظر حتى ينتهي أو أغلقه، ثم حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The drive “%@” reports an error (%@). Try again; if that does not help, use another disc or another drive.</source>
        <translation>يبلغ المحرك «&#x2068;%@&#x2069;» عن خطأ (&#x2068;%@&#x2069;). حاول مرة أخرى؛ وإذا لم يفد ذلك، فاستخدم قرصًا آخر أو محركًا آخر.</translation>
    </message>
    <message>
        <source>The drive “%@” has been disconnected. Connect it again, and start anew with a blank CD.</source>
        <translation>فُصل المحرك «&#x2068;%@&#x2069;». صله من جديد وابدأ مرة أخرى بقرص مضغوط فارغ.</translation>
    </message>
    <message>
        <source>The drive “%@” does not answer. Switch it off and on again, or connect it anew.</source>
        <translation>المحرك «&#x2068;%@&#x2069;» لا يستجيب. أطفئه ثم شغله من جديد، أو أعد توصيله.</translation>
    </message>
    <message>
        <source>The drive “%@” cannot be used (%@).</source>
        <translation>لا يمكن استخدام المحرك «&#x2068;%@&#x2069;» (&#x2068;%@&#x2069;).</translation>
    </message>
    <message>
        <source>Track %@, “%@”, cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>تعذرت قراءة المقطع %@، «&#x2068;%@&#x2069;»، من القرص بعد كتابته. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>The disc was written, but it could not be verified: the drive “%@” was disconnected, does not answer, or lost its disc. Check in a player or computer whether it can be read.</source>
        <translation>تمت كتابة القرص، لكن تعذر التحقق منه: فُصل المحرك «&#x2068;%@&#x2069;» أو لا يستجيب أو أُخرج القرص منه. تحقق في مشغل أو حاسوب من إمكانية قراءته.</translation>
    </message>
    <message>
        <source>The table of contents of the disc cannot be read back. Do not rely on this disc: burn the list again on another one.</source>
        <translation>تعذرت قراءة فهرس محتويات القرص بعد كتابته. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>“%@” cannot be read back from the disc. Do not rely on this disc: burn the list again on another one.</source>
        <translation>تعذرت قراءة «&#x2068;%@&#x2069;» من القرص بعد كتابته. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>The disc in the drive “%@” was written, but it is not as it should be. Do not rely on this disc: burn the list again on another one.</source>
        <translation>كُتب القرص الموجود في المحرك «&#x2068;%@&#x2069;»، لكنه ليس كما ينبغي أن يكون. لا تعتمد على هذا القرص: احرق القائمة من جديد على قرص آخر.</translation>
    </message>
    <message>
        <source>The drive “%@” could not open its tray. Make sure that nothing is in its way, and try again.</source>
        <translation>تعذر على المحرك «&#x2068;%@&#x2069;» فتح الدرج. تأكد من عدم وجود ما يعيقه، ثم أعد المحاولة.</translation>
    </message>
</context>
</TS>
