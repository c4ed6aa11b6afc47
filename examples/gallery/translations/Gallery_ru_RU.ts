<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ChartsPage</name>
    <message>
        <source>Lines</source>
        <translation>Линии</translation>
    </message>
    <message>
        <source>Bars over time</source>
        <translation>Столбцы во времени</translation>
    </message>
    <message>
        <source>A million points</source>
        <translation>Миллион точек</translation>
    </message>
    <message>
        <source>Bars of their own colours</source>
        <translation>Столбцы своих цветов</translation>
    </message>
    <message>
        <source>Mon</source>
        <translation>Пн</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Вт</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Ср</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Чт</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Пт</translation>
    </message>
    <message>
        <source>Shares</source>
        <translation>Доли</translation>
    </message>
    <message>
        <source>Bar chart</source>
        <translation>Столбчатая диаграмма</translation>
    </message>
    <message>
        <source>Rat</source>
        <translation>Крыса</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <source>Gerbil</source>
        <translation>Песчанка</translation>
    </message>
    <message>
        <source>A name too long for its bar</source>
        <translation>Имя длиннее своего столбца</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Gauge</source>
        <translation>Индикатор</translation>
    </message>
    <message>
        <source>Value of the first gauge</source>
        <translation>Значение первого индикатора</translation>
    </message>
</context>
<context>
    <name>ConsolePage</name>
    <message>
        <source>Write an entry</source>
        <translation>Записать строку</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Запись %1</translation>
    </message>
    <message>
        <source>sample</source>
        <translation>пример</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Примеры</translation>
    </message>
    <message>
        <source>Last entry</source>
        <translation>Последняя запись</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Console</source>
        <translation>Консоль</translation>
    </message>
    <message>
        <source>Gallery of the widget kit</source>
        <translation>Галерея набора виджетов</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>As the system</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>Small widgets</source>
        <translation>Малые виджеты</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Графики</translation>
    </message>
    <message>
        <source>Property form</source>
        <translation>Форма свойств</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Stack panel</source>
        <translation>Панель-стопка</translation>
    </message>
    <message>
        <source>Scroll viewer with a placeholder</source>
        <translation>Прокрутка с текстом для пустого списка</translation>
    </message>
    <message>
        <source>Icons: plain, coloured, live, disabled, disabled and live, a picture</source>
        <translation>Значки: простой, цветной, живой, выключенный, выключенный и живой, картинка</translation>
    </message>
    <message>
        <source>Ellipses</source>
        <translation>Эллипсы</translation>
    </message>
    <message>
        <source>Push button that tells of the mouse</source>
        <translation>Кнопка, сообщающая о мыши</translation>
    </message>
    <message>
        <source>Generated buttons and labels</source>
        <translation>Готовые кнопки и надписи</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Таймер</translation>
    </message>
    <message>
        <source>Item %1</source>
        <translation>Пункт %1</translation>
    </message>
    <message>
        <source>The last item takes what is left</source>
        <translation>Последний занимает остаток</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Вертикально</translation>
    </message>
    <message>
        <source>Nothing here yet</source>
        <translation>Пока пусто</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Строка %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>disabled and live</source>
        <translation>выключенный и живой</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>простой</translation>
    </message>
    <message>
        <source>coloured</source>
        <translation>цветной</translation>
    </message>
    <message>
        <source>live</source>
        <translation>живой</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>выключена</translation>
    </message>
    <message>
        <source>a picture</source>
        <translation>картинка</translation>
    </message>
    <message>
        <source>Touch me</source>
        <translation>Наведите мышь</translation>
    </message>
    <message>
        <source>nothing told yet</source>
        <translation>пока ничего</translation>
    </message>
    <message>
        <source>the mouse came</source>
        <translation>мышь пришла</translation>
    </message>
    <message>
        <source>the mouse left</source>
        <translation>мышь ушла</translation>
    </message>
    <message>
        <source>clicked twice</source>
        <translation>двойной щелчок</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>включена</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включена</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>A link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>secondary</source>
        <translation>второстепенная</translation>
    </message>
    <message>
        <source>accent</source>
        <translation>акцентная</translation>
    </message>
    <message>
        <source>large</source>
        <translation>крупная</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>Generic</name>
    <message>
        <source>1.Choices</source>
        <translation>Выбор</translation>
    </message>
    <message>
        <source>2.Numbers</source>
        <translation>Числа</translation>
    </message>
    <message>
        <source>3.Texts</source>
        <translation>Тексты</translation>
    </message>
    <message>
        <source>Animal</source>
        <translation>Животное</translation>
    </message>
    <message>
        <source>Birthday</source>
        <translation>День рождения</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>Заряд</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Копий</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Ход</translation>
    </message>
    <message>
        <source>Gerbil</source>
        <translation>Песчанка</translation>
    </message>
    <message>
        <source>Hamster</source>
        <translation>Хомяк</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Уровень</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Кличка</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Краска</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Картинка</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <source>Repeated</source>
        <translation>Повторять</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Повторов</translation>
    </message>
    <message>
        <source>Shown while the box above is checked</source>
        <translation>Видно, пока включено «Повторять»</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Диапазон</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>Pace</name>
    <message>
        <source>Fast</source>
        <translation>Быстро</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Медленно</translation>
    </message>
</context>
</TS>
