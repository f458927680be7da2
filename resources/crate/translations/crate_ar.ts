<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: GPL-2.0-or-later -->
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
        <translation>حول Crate</translation>
    </message>
    <message>
        <source>&amp;About Crate</source>
        <translation>&amp;حول Crate</translation>
    </message>
    <message>
        <source>A music library with tools.
Free software under the GNU General Public License, version 2 or later.</source>
        <translation>مكتبة موسيقى مزوّدة بأدوات.
برنامج حر برخصة جنو العمومية العامة، الإصدار 2 أو ما بعده.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;Songs</source>
        <translation>أ&amp;غانٍ</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>أ&amp;دوات</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>&amp;Choose Music Folder…</source>
        <translation>ا&amp;ختيار مجلد الموسيقى…</translation>
    </message>
    <message>
        <source>&amp;Look for Songs Again</source>
        <translation>ال&amp;بحث عن الأغاني من جديد</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;Find Songs</source>
        <translation>ال&amp;بحث في الأغاني</translation>
    </message>
    <message>
        <source>Songs</source>
        <translation>الأغاني</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>فتح %1</translation>
    </message>
    <message>
        <source>Send to %1</source>
        <translation>إرسال إلى %1</translation>
    </message>
    <message>
        <source>Add the selected songs to the list of %1</source>
        <translation>إضافة الأغاني المحددة إلى قائمة %1</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search songs</source>
        <translation>البحث في الأغاني</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Looking for songs</source>
        <translation>جارٍ البحث عن الأغاني</translation>
    </message>
    <message>
        <source>Looking for songs…</source>
        <translation>جارٍ البحث عن الأغاني…</translation>
    </message>
    <message>
        <source>Choose the Music Folder</source>
        <translation>اختيار مجلد الموسيقى</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>اختيار مجلد…</translation>
    </message>
    <message>
        <source>No song matches “%1”</source>
        <translation>لا توجد أغنية تطابق «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Titles, artists, albums and file names are searched.</source>
        <translation>يشمل البحث العناوين والفنانين والألبومات وأسماء الملفات.</translation>
    </message>
    <message>
        <source>The music folder cannot be read</source>
        <translation>تتعذر قراءة مجلد الموسيقى</translation>
    </message>
    <message>
        <source>%1: %2. Choose another folder.</source>
        <translation>&#x200f;&#x2068;%1&#x2069;: &#x2068;%2&#x2069;. اختر مجلدًا آخر.</translation>
    </message>
    <message>
        <source>No songs here yet</source>
        <translation>لا توجد أغانٍ بعد</translation>
    </message>
    <message>
        <source>Put music into %1, or choose another folder.</source>
        <translation>ضع الموسيقى في &#x2068;%1&#x2069;، أو اختر مجلدًا آخر.</translation>
    </message>
    <message>
        <source>There is no tool named “%1”.</source>
        <translation>لا توجد أداة اسمها «&#x2068;%1&#x2069;».</translation>
    </message>
    <message>
        <source>There is no tool that the files could be passed to.</source>
        <translation>لا توجد أداة يمكن تمرير الملفات إليها.</translation>
    </message>
    <message>
        <source>The tool did not take the songs.</source>
        <translation>لم تقبل الأداة الأغاني.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>&#x200f;&#x2068;%1&#x2069;: &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 و%2</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>إغلاق هذه الرسالة</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>الفنان</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>الألبوم</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>The file is not a plug-in.</source>
        <translation>الملف ليس ملحقًا.</translation>
    </message>
    <message>
        <source>The plug-in belongs to another program.</source>
        <translation>الملحق يخص برنامجًا آخر.</translation>
    </message>
    <message>
        <source>The tool was made for another version of Crate.</source>
        <translation>الأداة مصنوعة لإصدار آخر من Crate.</translation>
    </message>
    <message>
        <source>The tool does not say what it is.</source>
        <translation>لا تذكر الأداة ما هي.</translation>
    </message>
    <message>
        <source>The tool cannot be loaded: %1</source>
        <translation>يتعذر تحميل الأداة: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>The plug-in has no tool in it, although it says so.</source>
        <translation>لا يحتوي الملحق على أداة مع أنه يذكر ذلك.</translation>
    </message>
    <message>
        <source>Another tool has the same name, “%1”.</source>
        <translation>أداة أخرى لها الاسم نفسه «&#x2068;%1&#x2069;».</translation>
    </message>
    <message>
        <source>1 song</source>
        <translation>أغنية واحدة</translation>
    </message>
    <message>
        <source>1 song selected</source>
        <translation>أغنية واحدة محددة</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>يوم واحد</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>ساعة واحدة</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>دقيقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs</source>
        <translation>
            <numerusform>لا أغانٍ</numerusform>
            <numerusform>أغنية واحدة</numerusform>
            <numerusform>أغنيتان</numerusform>
            <numerusform>%Ln أغانٍ</numerusform>
            <numerusform>%Ln أغنية</numerusform>
            <numerusform>%Ln أغنية</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln songs selected</source>
        <translation>
            <numerusform>لا أغانٍ محددة</numerusform>
            <numerusform>أغنية واحدة محددة</numerusform>
            <numerusform>أغنيتان محددتان</numerusform>
            <numerusform>%Ln أغانٍ محددة</numerusform>
            <numerusform>%Ln أغنية محددة</numerusform>
            <numerusform>%Ln أغنية محددة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln يوم</numerusform>
            <numerusform>يوم واحد</numerusform>
            <numerusform>يومان</numerusform>
            <numerusform>%Ln أيام</numerusform>
            <numerusform>%Ln يومًا</numerusform>
            <numerusform>%Ln يوم</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours</source>
        <translation>
            <numerusform>%Ln ساعة</numerusform>
            <numerusform>ساعة واحدة</numerusform>
            <numerusform>ساعتان</numerusform>
            <numerusform>%Ln ساعات</numerusform>
            <numerusform>%Ln ساعة</numerusform>
            <numerusform>%Ln ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes</source>
        <translation>
            <numerusform>%Ln دقيقة</numerusform>
            <numerusform>دقيقة واحدة</numerusform>
            <numerusform>دقيقتان</numerusform>
            <numerusform>%Ln دقائق</numerusform>
            <numerusform>%Ln دقيقة</numerusform>
            <numerusform>%Ln دقيقة</numerusform>
        </translation>
    </message>
</context>
</TS>
