<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>TQFoundation</name>
    <message>
        <source>https://tqstudio.example/privacy-policy-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/privacy-policy-en</translation>
    </message>
    <message>
        <source>https://tqstudio.example/contact-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/contact-en</translation>
    </message>
    <message>
        <source>https://tqstudio.example/en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/en</translation>
    </message>
    <message>
        <source>ICP-2099000001-</source>
        <extracomment>Begins the number under which an app is filed in mainland China; only Chinese gives it in full.</extracomment>
        <translation>ICP-2099000001-</translation>
    </message>
    <message>
        <source>More Apps I Developed</source>
        <extracomment>Title of a row that leads to the developer&apos;s other apps.</extracomment>
        <translation>Mis otras apps</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Le doy la bienvenida a Hazel Grid.

El juego es una cuadrícula ortogonal, infinita y bidimensional, de células cuadradas. Cada célula se encuentra en uno de dos estados posibles: viva o muerta.

En cada paso de tiempo se producen las siguientes transiciones:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <extracomment>Second page: the first rule of the game.</extracomment>
        <translation>1.

Toda célula viva con menos de dos vecinas vivas muere, como por efecto de la subpoblación.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <extracomment>Third page: the second rule.</extracomment>
        <translation>2.

Toda célula viva con dos o tres vecinas vivas sigue viva en la siguiente generación.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <extracomment>Fourth page: the third rule.</extracomment>
        <translation>3.

Toda célula viva con más de tres vecinas vivas muere, como por efecto de la sobrepoblación.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <extracomment>Fifth page: the last rule.</extracomment>
        <translation>4.

Toda célula muerta con exactamente tres vecinas vivas se convierte en una célula viva, como por efecto de la reproducción.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>Y ahora, a disfrutar de Hazel Grid.

Un cordial saludo.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <extracomment>First of five pages that explain a game of guessing a written character; 「青岚」 is the app&apos;s name.</extracomment>
        <translation>Le doy la bienvenida a «青岚» (Qinglan).

Introduzca caracteres chinos, uno tras otro, y adivine el correcto en seis intentos, guiándose por los trazos y por su orden.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <extracomment>Second page: how to make a guess. The colours are those of the next two pages.</extracomment>
        <translation>Introduzca un carácter chino válido y pulse la tecla Intro para enviarlo.

Después de cada envío, es posible que cambie el color de los trazos:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <extracomment>Third page: what a green stroke means.</extracomment>
        <translation>Verde:

El carácter correcto contiene este trazo y su posición en el orden de los trazos es la adecuada.

Se muestran todos los trazos acertados de este modo, tanto en el carácter correcto como en el enviado.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <extracomment>Fourth page: what a grey stroke means.</extracomment>
        <translation>Gris:

El carácter correcto contiene este trazo, pero su posición en el orden de los trazos no es la adecuada.

Si varios de estos trazos son iguales, en el carácter correcto se muestra solo uno, mientras que en el enviado se muestran todos.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>Y ahora, le deseo que disfrute de «青岚».

Reciba mis más respetuosos saludos y mis mejores deseos.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Política de privacidad</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Valorar en el App Store</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Sígame en redes sociales</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Mi sitio web personal</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>Contacto: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>Name, for screen readers, of the button that leads to the next page of an introduction.</extracomment>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>This page could not be loaded. Check your connection and try again.</source>
        <extracomment>Stands in place of a web page.</extracomment>
        <translation>No se ha podido cargar esta página. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The connection to this site is not secure, so the page was not opened.</source>
        <extracomment>Stands in place of a web page whose certificate is not valid.</extracomment>
        <translation>La conexión con este sitio no es segura, por lo que no se ha abierto la página.</translation>
    </message>
    <message>
        <source>This page has stopped working.</source>
        <extracomment>Stands in place of a web page whose process has ended.</extracomment>
        <translation>Esta página ha dejado de funcionar.</translation>
    </message>
    <message>
        <source>This page takes too long to load.</source>
        <extracomment>Stands in place of, or below, a web page.</extracomment>
        <translation>Esta página tarda demasiado en cargarse.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the in-app browser.</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button that leads to the previous page, in the in-app browser.</extracomment>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>Button that loads the page once more, in the in-app browser.</extracomment>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Loading…</source>
        <extracomment>Below the name of a site while a page is being loaded, in the in-app browser.</extracomment>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>There is no mail program on this device.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>No hay ningún programa de correo en este dispositivo.</translation>
    </message>
    <message>
        <source>The mail program on this device is not set up.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>El programa de correo de este dispositivo no está configurado.</translation>
    </message>
    <message>
        <source>The mail server cannot be reached. Check your connection and try again.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>No se puede acceder al servidor de correo. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The mail server did not accept your message.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>El servidor de correo no ha aceptado su mensaje.</translation>
    </message>
    <message>
        <source>Your message could not be sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>No se ha podido enviar su mensaje.</translation>
    </message>
    <message>
        <source>The mail program stopped unexpectedly. Your message may not have been sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>El programa de correo se ha detenido inesperadamente. Es posible que su mensaje no se haya enviado.</translation>
    </message>
    <message>
        <source>There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again sends it twice.</source>
        <extracomment>Why a mail was not sent. It must say that another attempt may send the mail twice.</extracomment>
        <translation>No ha habido respuesta en 30 segundos. Es posible que su mensaje ya se haya enviado; en ese caso, si lo intenta de nuevo, se enviará dos veces.</translation>
    </message>
    <message>
        <source>New Message</source>
        <extracomment>Title of the sheet in which the user writes a mail.</extracomment>
        <translation>Mensaje nuevo</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>Title of the sheet while the mail is being sent.</extracomment>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the sheet without sending the mail.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that sends the mail.</extracomment>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that sends the mail, or loads the page, once more after that failed.</extracomment>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the recipient&apos;s address.</extracomment>
        <translation>Para:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <extracomment>Label before the subject of a mail.</extracomment>
        <translation>Asunto:</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name of the field for the text of a mail, for screen readers.</extracomment>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>More text, which cannot be shown here, is sent along below yours.</source>
        <extracomment>Note below the text that the user writes in a mail.</extracomment>
        <translation>El resto del texto, que no se puede mostrar aquí, se envía debajo del suyo.</translation>
    </message>
    <message>
        <source>Discard this message? What you have written will be lost.</source>
        <extracomment>Asked before the sheet is closed; answered by &quot;Discard&quot; or &quot;Keep Writing&quot;.</extracomment>
        <translation>¿Descartar este mensaje? Se perderá lo que ha escrito.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button that closes the sheet; the text that the user has written is lost.</extracomment>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Keep Writing</source>
        <extracomment>Button that leads back to the mail that is being written.</extracomment>
        <translation>Seguir escribiendo</translation>
    </message>
    <message>
        <source>Stop sending this message? It may already have been sent.</source>
        <extracomment>Asked if the user cancels while the mail is being sent; answered by &quot;Stop Sending&quot; or &quot;Keep Sending&quot;.</extracomment>
        <translation>¿Detener el envío de este mensaje? Es posible que ya se haya enviado.</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <extracomment>Button that stops the sending of a mail.</extracomment>
        <translation>Detener el envío</translation>
    </message>
    <message>
        <source>Keep Sending</source>
        <extracomment>Button that lets the sending of a mail continue.</extracomment>
        <translation>Seguir enviando</translation>
    </message>
</context>
</TS>
