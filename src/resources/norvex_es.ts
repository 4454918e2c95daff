<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>Acerca de Norvex</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>El archivo no contiene datos que se puedan leer.</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Tipos de letra:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Colores usados:</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 Se muestra lo que se leyó antes.</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>Cuadro delimitador:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>Elige imágenes y abre cada una en su propia ventana</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Cerrar la barra de búsqueda</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Espacio de color:</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Las órdenes y sus teclas</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>Imagen SVG comprimida (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copiar la ruta</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>Copiar el texto seleccionado</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copiar el valor</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copiando…</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Derechos de autor:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Creado:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Creador:</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>Grados, minutos y segundos: 12,3045 es 12° 30′ 45″</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>%1 pt hacia abajo</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>Arrastre dos veces para marcar un rectángulo. Arrástrelo con la tecla Ctrl pulsada para llevarlo a otro programa como archivo.</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Dibujando…</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>Imágenes EPS, Illustrator, PDF y SVG</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>PostScript encapsulado (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>PostScript encapsulado con vista previa de intercambio (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Codificación del código fuente</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Codificación:</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Archivo de este documento</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Para:</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>Imagen GIF</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>Ocultar la extensión</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>Alta resolución:</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>%1 pt más alto</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>Imagen JPEG</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Pre&amp;ferencias…</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>Atenuar el exterior de la se&amp;lección</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>La &amp;ventana se ajusta a la imagen</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>Nunca mayor que la imagen; se reduce con ella.</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>Fondo a &amp;cuadros tras las imágenes nuevas</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>Muestra dónde no hay nada pintado, en lugar del color de fondo.</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>A&amp;tenuar el exterior de la selección</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>Resalta lo que se copia, guarda o imprime.</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>&amp;Unidad de longitud:</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>Para las coordenadas, el tamaño de una selección y los números que se escriben.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Milímetros</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pulgadas</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Picas</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>&amp;Recargar automáticamente los archivos modificados</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>Si no, una barra en la ventana lo pregunta.</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>R&amp;ecordar los archivos</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>Archivos recientes y cómo se mostraron sus imágenes. Al desactivarlo se olvida todo.</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>&amp;Borrar el historial</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>Olvida los archivos recientes y cómo se mostraron sus imágenes.</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RGB para pantallas</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMYK para imprenta</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>Tamaño real en esta &amp;pantalla</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>Cambiar el tamaño de la selección</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>Arrastrar un cuadrado de su borde</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Mover la selección</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>Arrastrar la etiqueta de su tamaño</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>%1 pt a la izquierda</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>%1 pt más bajo</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Coincidencias</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>Mover la selección</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>%1 pt más estrecho</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>No hay archivos recientes</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encontró</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>No está en esta página</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>No es posible con esta imagen: %1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>No hay nada seleccionado.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>Solo se pueden abrir archivos de este equipo.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir la carpeta</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Abrir reciente</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>Se detuvo la apertura</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abriendo…</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>Abre imágenes EPS, Illustrator, PDF y SVG y entrega cualquier parte de ellas como vectores.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>Mostrar el selector de color</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Documento PDF</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>Imagen PNG</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>Las imágenes que abra aparecerán aquí.</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>Inténtelo de nuevo con otro formato.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Archivos recientes</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>Cambiar el tamaño de la selección</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>%1 pt a la derecha</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>Arrastre para girar la imagen. Con Mayús avanza de 15° en 15°; con un doble clic vuelve a 0°.</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>Imagen SVG</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>Guardar la selección</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Guardar en…</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Desplazarse a los lados</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Desplazarse arriba y abajo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>Selección de %1; %2 a %3; %4: %5 por %6 puntos.</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>Escribir la selección, o lo visible, en un archivo.</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>Esquinas del rectángulo seleccionado</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>Arrastre una vez para fijar el punto inicial y otra vez para extender el rectángulo.</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>Código fuente del documento</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>Imagen TIFF</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>La imagen todavía se está imprimiendo.</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>Todavía se está escribiendo un archivo.</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>Cerrar al terminar</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Detener y cerrar</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Mantener abierta</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>Se detuvo la escritura</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>El archivo se borró o se movió. Se muestra lo que se leyó antes.</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>Preparando «%1» para imprimir…</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Quiere reemplazarlo?</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>El archivo ha cambiado en el disco.</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>La imagen no se puede mostrar.</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>La imagen no se puede escribir en este formato</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>No se pudo copiar la imagen. El portapapeles conserva lo que contenía.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>Copiar la selección, o lo visible, en el portapapeles.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>Imprimir la selección, o lo visible.</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>La selección empieza en %1; %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>No hay suficiente memoria para esto</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>No se pudo hacer.</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>No es una imagen EPS, Illustrator, PDF o SVG.</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>El nombre del archivo no es texto en UTF-8. Cambie el nombre del archivo.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>%1 pt hacia arriba</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>viewBox o límites de la imagen, en sus propias unidades</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>Se perderá su contenido.</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>%1 pt más ancho</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Escribiendo…</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>or drop pictures here</source>
        <translation>o suelte imágenes aquí</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>No se pudo abrir «%1».</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>No se pudieron abrir %1 archivos.</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>A&amp;bajo:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copias:</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>A&amp;justar a una página</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Apaisado</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimir…</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Derecha:</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>&amp;Escala:</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>&amp;Horizontalmente</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>Vertical&amp;mente</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>&amp;Desde</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>Encabe&amp;zado y pie de página</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>Centrado:</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>Centrado horizontalmente</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>Centrado verticalmente</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>Iz&amp;quierda:</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>Esta impresora ya no existe.</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>Imprimir la &amp;parte seleccionada o visible…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Buscando impresoras…</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>Reduce la imagen hasta que cabe en una página</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>Márgenes:</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientación:</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;resora:</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>Con&amp;figurar página…</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Configurar página</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>&amp;Papel:</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>&amp;Vertical</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Vista previa de la página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Imprimir «%1»</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>Imprimiendo «%1»: página %2 de %3…</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>Imprimiendo «%1»…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>Guardar como archivo PDF</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>Guardar las páginas como PDF</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenida</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>A&amp;rriba:</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>No acepta trabajos</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>En cada página, la fecha sobre la imagen y el lugar del archivo debajo</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>Los márgenes no dejan sitio en el papel.</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>Las páginas serán un archivo PDF.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>No hay ninguna impresora.</translation>
    </message>
    <message>
        <source>to</source>
        <translation>a</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>No se imprimió «%1».</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>Con el ratón</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Buscar órdenes y teclas</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>¿Añadir al archivo una vista previa para los programas que no pueden dibujar EPS?</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>Con vista previa</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>El archivo nuevo contendría menos que la imagen.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior. El intérprete de PostScript está bajo la Licencia Pública General Affero de GNU, versión 3 o posterior.</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>Se detuvo el dibujo</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>Norvex terminó de forma inesperada la última vez.</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>«%1» estaba abierto en ese momento y puede ser la causa.</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>No abrir</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>Abrirlo de nuevo</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>En ese momento había %1 archivos abiertos. «%2» fue el último que se usó y puede ser la causa.</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>Abrir los demás</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>Abrir todos de nuevo</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Manual de Norvex</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Borrar el historial</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>Recordar los archivos</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Buscar en el manual</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Temas</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Página del manual</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>Fijar la primera esquina de una selección</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Arrastrar</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>Extender la selección desde allí</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>Arrastrar de nuevo</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>Llevar la selección a otro programa</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Ctrl + arrastrar</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Ampliar o reducir en el puntero</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Ctrl + rueda</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>Mover la imagen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>Órdenes para la imagen</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Botón derecho</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 Se muestra lo que se había dibujado hasta entonces.</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>Así se aíslan los documentos que abre:</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>Leer como:</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>La codificación con que se leen los comentarios y el código fuente</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>El código fuente no es válido en %1.</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>Es una suposición, pues nada indica cómo está codificado el código fuente. Leído como %1:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>Lo que dice la biblioteca que lee la imagen</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>Sin vista previa</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>Imagen WebP</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>Copiado: %1 pt</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>Otra carpeta…</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>Carpeta para el archivo exportado</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>EPS con vista previa TIFF</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Esta página</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>Parte:</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> píxeles por pulgada</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Anchura en píxeles</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Altura en píxeles</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>píxeles</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolución:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>Rellenar con</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Fondo:</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Calidad:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>Creando una vista previa…</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>Tamaño del archivo: %1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>No es posible</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xportar…</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>La imagen es demasiado grande.</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>Se exportó «%1»</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>Parte visible</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Toda la imagen</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas las páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Página %1</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>&amp;Miniaturas de las páginas</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>La página %1 no tiene superficie.</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>Posición del puntero en la imagen. Haga clic para cambiar de unidad.</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>Unidad de longitud</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>Página &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>Página &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>&amp;Primera página</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>Ú&amp;ltima página</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>&amp;Ir a la página…</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>Ajustar la &amp;ventana a la imagen</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>Recargar au&amp;tomáticamente los archivos modificados</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>Seleccionar rectángulo</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>Ajustar a la &amp;anchura</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>Imagen siguiente de la carpe&amp;ta</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>Imagen anterior de la ca&amp;rpeta</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>Des&amp;hacer la selección</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>&amp;Rehacer la selección</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>Seleccionar rectán&amp;gulo…</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>Desde la izquierda:</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>Desde abajo:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Anchura:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>Todavía en curso: puede esperar, o detenerlo y ver lo que ya hay.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Esperar</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Revisión</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Revisar de nuevo</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Revisando…</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>Para qué es la imagen</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>Para cualquier uso</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>Para imprenta</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>Para una revista</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>Para la web</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>Para archivar</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>Desde un archivo…</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Hallazgos</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se encontró ningún problema.</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>%1 más no se muestran.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparar…</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>Reparar todo…</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>Escribe una copia reparada del archivo</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 error</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 errores</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 advertencia</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 advertencias</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 nota</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 notas</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>en %1; %2 pt</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>La revisión se detuvo.</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>El archivo cambió durante la revisión.</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>No hay ningún archivo que revisar.</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>No se pudo revisar todo. %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>Perfiles (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>Se escribe una copia reparada del archivo. Lo que dibuja no cambia.</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vista previa:</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>Creada de nuevo</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitida</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>Reparando…</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>No hubo que cambiar nada.</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>Esto queda como estaba:</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>Se escribió «%1».</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>Abrirlo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>Información en la ve&amp;ntana</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>Ir a la información o a la imag&amp;en</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>El programa está envuelto en un formato de otro sistema</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>Una sección de la cabecera binaria está fuera del archivo</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>Hay secciones de la cabecera binaria que se solapan</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>Bytes antes de la primera línea</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>Bytes después del final del programa</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>El archivo está cortado</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>La primera línea no es la de un archivo PostScript</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>La primera línea no declara EPSF</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>La primera línea declara una versión que no existe</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>No hay %%BoundingBox</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend) sin cuadro al final</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox no contiene cuatro números</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>El cuadro delimitador está vacío</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox contiene números que no son enteros</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox no encierra a %%HiResBoundingBox, o es mucho mayor</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>Hay algo dibujado fuera del cuadro delimitador</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>El cuadro delimitador es mayor que lo dibujado</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>El programa no dibuja nada que no sea blanco</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>El programa se detiene con un error de PostScript</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>El intérprete hizo una observación</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>Falta showpage</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>Un operador impropio de un archivo EPS</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>Operadores de un nivel de lenguaje superior al declarado</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>Falta %%EndComments</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>Hay comentarios en un orden incorrecto</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>Una sección empieza y no termina, o al revés</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>Líneas de más de 255 bytes</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>Las líneas terminan de distintas maneras</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>Otros bytes que los declarados en %%DocumentData</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>El archivo necesita tipos de letra que no incluye</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>No hay vista previa</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>La vista previa no se puede leer</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>La vista previa muestra otra imagen que la dibujada</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>La vista previa no tiene la forma del cuadro delimitador</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>Un tipo de letra no está ni en el archivo ni en este equipo</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>Un tipo de letra no está incrustado</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>Un tipo de letra está incrustado entero</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>Un tipo de letra Type 3</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>Texto menor de lo que permite el perfil</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>Espacio de color que el perfil no nombra</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>Colores RGB que el perfil no admite</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>RGB en una imagen CMYK</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>Tintas planas</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>Más tinta en un punto de la que permite el perfil</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>El blanco en sobreimpresión desaparece</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>Texto negro sin sobreimpresión</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparencia</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>Líneas más finas de lo que permite el perfil</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>Una imagen tiene menos píxeles por pulgada de los que pide el perfil</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>Hay algo dibujado fuera del cuadro de la página</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>La imagen no encaja en ninguna columna del perfil</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>No se examinó una parte de la página</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>El archivo está dañado</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>El documento está cifrado</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>Sus permisos prohíben imprimirlo o modificarlo</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>Declara cumplir una norma</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>Declara PDF/X o PDF/A y no tiene intención de salida</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>Necesita otros archivos, que nunca se cargan</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>Los filtros se convierten en imágenes al imprimir</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>El tamaño no tiene unidad, o no lo hay</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>Los scripts y las animaciones no se ejecutan</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>La reparación extrae el programa</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>La reparación reescribe la cabecera</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>La reparación los omite</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>Vuelva a obtener el archivo</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>La reparación la escribe</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>La reparación escribe las versiones 3.0</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>La reparación lo calcula</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>La reparación escribe números enteros</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>La reparación calcula ambos</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>Vuelva a escribir el archivo con el programa que lo creó</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>La reparación lo añade</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>Vuelva a escribir el archivo como EPS</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>Añada %%LanguageLevel a la cabecera</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>La reparación ordena los de la cabecera</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>La mayoría de los programas las aceptan</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>Declare %%DocumentData: Binary</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>Incruste los tipos de letra o trace el texto</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>La reparación crea una</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>Incruste el tipo de letra</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>Use un tipo de letra con contornos</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>Use un texto más grande</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>Convierta los colores</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>Elija colores con menos tinta</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>Quítele la sobreimpresión</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>Ponga el texto negro en sobreimpresión</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>Acóplela si la imprenta lo pide</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>Dibújelas más gruesas</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>Colóquela más pequeña, o con más píxeles</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>Amplíe el cuadro u omítalo</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>Dibújela para el ancho de la columna</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>Conviértalo a PDF y compruebe que no falte nada</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>Escríbalo sin cifrado</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>Escríbalo sin restricciones</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>Añada la intención de salida</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>Incrústelos</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>Dibuje el efecto o acepte una imagen</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>Indique ancho y alto en mm, pt o in</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>La contraseña es incorrecta.</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>El documento está protegido con una contraseña.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>&amp;Capas</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>El documento bloquea esta capa.</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>Buscar en la i&amp;magen…</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>No se puede leer el texto de la imagen.</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>Seleccionar t&amp;exto</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>Copiar te&amp;xto</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texto copiado</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>Los enlaces de este tipo no se siguen.</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>Ningún programa abre aquí esta dirección.</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>La imagen enlaza a esta dirección. ¿Abrirla?</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>Abrir dirección</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Tintas</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Cobertura</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>Solo esta tinta</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>Todas las tintas</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>Tintas como planchas grises</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>La imagen está separada en planchas: %1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Metarchivo de Windows, %1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>Conservar el texto como texto, con sus tipos de letra</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>Mostrar las tintas en la imagen</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>Simular la sobreimpresión</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>Marcar la tinta por encima de</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>Límite de todas las tintas juntas</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>La página tal como la imprimen sus tintas</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>Máxima tinta en un punto: %1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>Todas las tintas bajo el puntero: %1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>La página se está separando en sus tintas…</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>No hay ninguna imagen.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>La página mostrada (%1)</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>Las %1 páginas</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>Algunas páginas</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>De la página</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>De la página:</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pági&amp;nas:</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>Hojas:</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Teclas nuevas</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>&amp;Quitar teclas</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>Teclas pre&amp;determinadas</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>Restablecer &amp;todo</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>Teclas de «%1»:</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>Elija una orden y pulse después las teclas que debe tener.</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>«%1» sirve para escribir y para mover la imagen. Añada Ctrl o Alt, o elija una tecla de función.</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>No se puede escribir «%1»; no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>«%1» ya pertenece a «%2»; no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>«%1» abre el menú «%2»; no se ha cambiado nada.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Facts about the picture</source>
        <translation>Datos de la imagen</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>&amp;Acerca de Norvex</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Tamaño &amp;real</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>&amp;Deseleccionar</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Buscar…</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recargar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>Ángulo de giro</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>Ángulo de giro en grados, minutos y segundos</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Espacio de color:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Derechos de autor:</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>Creado:</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Creador:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>No hay nada seleccionado.</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Codificación:</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Fin de la selección</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Pantalla c&amp;ompleta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Para:</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>Tipo de vista previa</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>Rectángulo de la imagen</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>Imagen que se escribirá</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>Imagen con zoom y barras de desplazamiento</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>Restablecer el &amp;giro</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Girar a la &amp;izquierda</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Girar a la &amp;derecha</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Giro</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Código fuente</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Código fuente</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>Inicio de la selección</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;mpliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Red&amp;ucir</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>&amp;Guardar como…</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>&amp;Copiar toda la imagen</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>&amp;Touch Bar</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>Ata&amp;jos de teclado</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>BoundingBox:</source>
        <translation>BoundingBox:</translation>
    </message>
    <message>
        <source>HiResBoundingBox:</source>
        <translation>HiResBoundingBox:</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Tipos de letra:</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Colores usados:</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>Codificación del código fuente</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>Sobre la codificación</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>Lo que parece decir el código fuente</translation>
    </message>
</context>
<context>
    <name>SKTZoomingScrollView</name>
    <message>
        <source>10%</source>
        <translation>10 %</translation>
    </message>
    <message>
        <source>25%</source>
        <translation>25 %</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>75%</source>
        <translation>75 %</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>125%</source>
        <translation>125 %</translation>
    </message>
    <message>
        <source>150%</source>
        <translation>150 %</translation>
    </message>
    <message>
        <source>200%</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>400%</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>800%</source>
        <translation>800 %</translation>
    </message>
    <message>
        <source>1600%</source>
        <translation>1600 %</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>the file is empty</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>El archivo supera los %1 MiB.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>Es una tubería, no un archivo corriente.</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>Es un socket, no un archivo corriente.</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>Es un dispositivo, no un archivo corriente.</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>Otro programa está modificando el archivo.</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>Solo se pueden abrir archivos locales.</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>Este tipo de documento no se puede mostrar.</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>No es una imagen EPS, Illustrator, PDF o SVG.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>No es PostScript encapsulado.</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>La cabecera PostScript no indica ningún cuadro delimitador utilizable.</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>El PostScript no tiene ningún cuadro delimitador utilizable.</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>El archivo no contiene PostScript.</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>La imagen no tiene superficie que dibujar.</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>El documento SVG no tiene superficie.</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>La imagen está vacía: su ancho o su alto es cero.</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>El archivo está cortado: faltan %1 de %2 bytes (%3).</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>El archivo parece cortado: su PostScript se interrumpe antes del final.</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>El archivo está dañado; se reparó en lo posible.</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>El archivo está dañado; no se puede leer nada (%1).</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>El archivo está dañado; no se puede leer nada de la página %1.</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>El documento está dañado y no se puede leer como PDF.</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>El documento no es un PDF legible.</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>El documento está protegido con una contraseña.</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>La contraseña es incorrecta.</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>El documento usa un cifrado no admitido.</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>El documento no tiene páginas.</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>El documento tiene más de %1 páginas.</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>No existe la página %1; el documento tiene %2.</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>No existe la página %1; el documento tiene %2.</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>La página %1 está demasiado atrás en el documento.</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>La página %1 no tiene superficie.</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>La página %1 no se puede leer.</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>Este archivo de Illustrator se guardó sin contenido PDF, así que muestra un aviso en lugar del dibujo.</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>El documento está protegido por cifrado; lo que se hace con él no lo está.</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>Se omitieron los scripts del documento.</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>El programa PostScript se detiene con un error.</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>El programa PostScript intenta usar un archivo, lo que ninguna imagen puede hacer.</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>El PostScript no dibuja ninguna página.</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>El PostScript no terminó en %1 segundos.</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>El PostScript necesita más memoria de la que se le concede.</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>El PostScript agotó el tiempo o la memoria que se le conceden.</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>Se omitió lo que sigue a la imagen en el archivo.</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>No hay intérprete de PostScript.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>El intérprete de PostScript ha terminado.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>No se puede acceder al intérprete de PostScript.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>Ghostscript (gs) no está instalado.</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript falló con este PostScript.</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>El documento está vacío.</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>El documento no es XML.</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>El documento es XML, pero no SVG.</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>El documento no es XML bien formado.</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>Los datos comprimidos están dañados.</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>Los datos comprimidos están cortados.</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>Los datos comprimidos crecen a más de %1 veces su tamaño.</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>Los datos comprimidos contienen más de %1 MiB.</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>El documento tiene más de %1 elementos.</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>Los elementos del documento se anidan a más de %1 niveles.</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>Las referencias del documento se anidan a más de %1 niveles.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>Los glifos de los tipos de letra del documento se anidan a más de %1 niveles.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>Los glifos de los tipos de letra del documento muestran más de otros %1.</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>El documento usa entidades más de %1 veces.</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>Las entidades del documento se expanden a más de %1 MiB.</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>Las entidades del documento se refieren unas a otras sin fin.</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>La imagen mide más de %1 puntos de ancho o de alto.</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>La imagen no se puede leer.</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>La imagen contiene algo que no se puede dibujar.</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>No se conoce la codificación %1.</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>Los bytes no son texto en la codificación %1.</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>El documento remite a otros archivos, que nunca se cargan (referencias: %1).</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>El documento tiene scripts, que nunca se ejecutan.</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>El documento está animado y se muestra en reposo.</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>Falta el tipo de letra %1; otro lo sustituye.</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>Falta el tipo de letra %1; lo sustituye %2.</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>La imagen no estuvo lista en %1 segundos.</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>La imagen no estuvo lista en el tiempo que se le concede.</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>La imagen necesita más memoria de la permitida.</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>La imagen necesita más tiempo de procesador del permitido.</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>La imagen necesita más archivos temporales de los permitidos.</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>La imagen tiene más niveles anidados de los que se pueden dibujar.</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>La imagen es mayor que la memoria que se le concede.</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>La imagen tendría más píxeles de los permitidos.</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>Un lado de la imagen superaría los %1 píxeles.</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>La imagen superaría los %1 megapíxeles.</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>No hay memoria suficiente para la imagen.</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>No hay memoria suficiente para el documento.</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>No hay memoria suficiente para dibujar la imagen.</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>No hay memoria suficiente para leer el documento.</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>La imagen es mayor de lo que aquí pueden ser los archivos.</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>Hay demasiados archivos abiertos para otra imagen.</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>El proceso de la imagen terminó sin responder.</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>El proceso de la imagen no respondió a tiempo.</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>El sistema terminó el proceso de la imagen, probablemente por falta de memoria.</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>El proceso de la imagen dio una respuesta que no puede ser cierta.</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>No se pudo iniciar ningún proceso para la imagen.</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>No se pudo iniciar el programa que lee las imágenes.</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>El programa que lee las imágenes ha terminado.</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>El programa que lee las imágenes aún no ha respondido.</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>No se pudo confinar el proceso de la imagen: este sistema no ofrece ni Landlock ni espacios de nombres de usuario con filtros seccomp.</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>Se detuvo el dibujo.</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>No se pudo procesar la imagen.</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>La imagen no se puede dibujar a este tamaño.</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>El archivo ya existe.</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>La carpeta de destino no existe.</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>Hay una carpeta con ese nombre.</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>No queda espacio para escribir.</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>No está permitido escribir ahí.</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>No se pudo escribir el archivo (%1).</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>No es un archivo corriente.</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>El archivo es de solo lectura.</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>El rectángulo está vacío o fuera de los límites.</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>No hay instalado ningún perfil de imprenta (%1).</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>La página no se puede escribir como PostScript.</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>La página no se puede escribir como SVG.</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>La imagen no se puede escribir como PDF.</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>La página es demasiado grande o está demasiado anidada para convertirse en SVG.</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>Solo se pueden reparar archivos EPS.</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>Una imagen SVG no tiene tintas: sus colores son los de una pantalla.</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>A %1 ppp una plancha tiene %2 millones de píxeles; como máximo se admiten %3 millones.</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>No se puede acceder al servicio de impresión.</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>El servicio de impresión no responde.</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>El servicio de impresión no da ninguna respuesta comprensible.</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>No hay ninguna impresora.</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>No hay ninguna impresora predeterminada.</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>No hay ninguna impresora llamada «%1».</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>La impresora «%1» no acepta trabajos.</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>La impresora «%1» no está abierta a este usuario.</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>La impresora «%1» pide un nombre de usuario y una contraseña, que aquí no se solicitan.</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>La impresora «%1» no aceptó el trabajo: %2.</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>El documento tiene %1 páginas y solo se pueden imprimir las primeras %2.</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>Esas páginas no existen: el documento tiene %1.</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>Esas páginas no existen: la imagen ocupa %1.</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>Las páginas ocuparían más de %1 hojas de papel.</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>La imagen ocuparía más de %1 hojas de papel.</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>Los márgenes no dejan sitio en el papel.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>No se permite el acceso.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de lectura o escritura del dispositivo.</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>su PostScript</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>su vista previa</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>sus planchas</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>su página</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>sus páginas</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>sin indicar el motivo</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>Se omitieron las acciones que inician programas o abren otros archivos.</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>Se omitió lo que el documento hace al abrirse.</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>Se omitieron las referencias a archivos externos al documento.</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>Se omitieron los programas PostScript del documento.</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>Se han omitido glifos que se muestran a sí mismos.</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>Se han omitido glifos que muestran demasiados otros.</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>Un tipo de letra no se puede conservar; otro lo sustituye.</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>El tipo de letra %1 no se puede conservar; otro lo sustituye.</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>El origen no tiene PostScript; el archivo solo contiene una vista previa.</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>La imagen no da PostScript; el archivo solo contiene una vista previa.</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>El PDF no tiene asunto, porque el documento tiene descripción pero no título.</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>La vista previa no se pudo escribir como TIFF.</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>No se pudo volver a abrir el resultado. %1.</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>Se omitió una imagen con más píxeles de los permitidos.</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>Se omitieron letras de más tipos de letra o formas de los permitidos.</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>Un grupo que cubre lo anterior o se mezcla con lo que hay debajo se compone por separado, como permite SVG.</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>Parte del texto queda en contornos: sirve de línea o de recorte, o su tipo de letra no puede o no debe incrustarse.</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>El documento no dice qué significan algunos caracteres: se muestran, pero ninguna búsqueda los encuentra.</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>Lo que se dibuja con un filtro (elementos: %1) se guarda como imagen.</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>Las máscaras (elementos: %1) se guardan como imágenes; lo que enmascaran, no.</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>El texto está en %1 y se entrega como UTF-8.</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>El ancho o el alto del documento no es una longitud y se pasa por alto.</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>El viewBox del documento no es legible y se pasa por alto.</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>No dibuja nada y no indica ningún cuadro delimitador.</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>No se puede reparar. %1.</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>El programa se extrajo de %1.</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>El programa se extrajo de su archivo binario.</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>Se omitió la vista previa.</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>Se omitió el metarchivo de Windows.</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>Se creó una vista previa de %1 × %2 píxeles.</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>La primera línea es %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>Se insertó %%EndComments.</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>Se omitió un segundo %%EndComments.</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>Se insertó showpage.</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>Se insertó %%EOF.</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>Se omitió lo que seguía a %%EOF.</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>Se omitió lo que precedía a la primera línea.</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>El cuadro del final del archivo está en su cabecera.</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>El cuadro delimitador es %1 (%2).</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>Se omitió %1, porque no estaba en su sitio.</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>El documento supera los %1 MiB.</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>Los datos comprimidos superan los %1 MiB.</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>No hay memoria suficiente para descomprimir los datos.</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>El documento tiene un filtro con una matriz de más de %1 números.</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>Los selectores de las hojas de estilo del documento se anidan a más de %1 niveles.</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>El documento tiene texto de más de %1 unidades de tamaño.</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>Las planchas de la página tienen demasiados píxeles; una resolución menor ayuda.</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript no separó la página.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>No se puede iniciar Ghostscript (gs).</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>No se pudo confinar el intérprete de PostScript.</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>No hay %%BoundingBox.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>El archivo está envuelto como %1, con una imagen Macintosh (PICT) de %2 × %3 puntos como vista previa.</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>No hay vista previa.</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>El archivo no empieza con %!PS-Adobe.</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>Falta showpage.</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>El tipo de letra %1 es de tipo 3 (Type 3).</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>El tipo de letra %1 no está incrustado.</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>El tipo de letra %1 está incrustado entero.</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>Hay colores RGB.</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>Hay blanco en sobreimpresión, que desaparecerá.</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>El texto negro pequeño no está en sobreimpresión.</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>El documento está cifrado.</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>Tiene scripts o animaciones, que no se ejecutan.</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>Falta su ancho o su alto, o no tiene unidad.</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>Hay transparencia.</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>No se examinó una parte de la página.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox contiene «%1» en lugar de cuatro números.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox contiene «%1», y no todos son números enteros.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 no encierra a %%HiResBoundingBox %2.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 es mucho mayor que %%HiResBoundingBox %2.</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>sin nombre</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox se anuncia para el final y no aparece.</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>El cuadro delimitador %1 no tiene superficie.</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>Dentro del cuadro delimitador solo se dibuja blanco.</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>El cuadro delimitador %1 corta el dibujo, que lo sobrepasa en %2 pt: %3.</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>El cuadro delimitador %1 es más del doble de grande que el dibujo: %2.</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>La sección %1 termina en el byte %2 y el archivo en el byte %3.</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>La sección %1 se superpone a otra parte del archivo.</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>Bytes antes de %!PS-Adobe: %1.</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>Bytes después de %%EOF: %1.</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>El archivo necesita tipos de letra que no incluye: %1.</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>La vista previa mide %1 × %2 píxeles y el cuadro delimitador %3 × %4 puntos.</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>La vista previa muestra otra imagen que la que dibuja el programa (diferencia media: %1 %).</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>La primera línea «%1» no dice %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>La primera línea declara PS-Adobe-%1 y EPSF-%2, que no existen.</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>La cabecera no tiene %%EndComments.</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments está después de la primera línea que no es comentario.</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>Líneas de más de 255 bytes: %1; la primera es la línea %2.</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>Las líneas terminan de %1 maneras distintas.</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>Una línea solo tiene %1 pt de grosor; se piden %2 pt.</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>Un texto solo mide %1 pt; se piden %2 pt.</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>Un color lleva %1 % de tinta; se permite %2 %.</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>La imagen (%1) de %2 × %3 píxeles tiene %4 ppp; se piden %5.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>color</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>Aparece el espacio de color %1, que el perfil no nombra.</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>Se usa la tinta plana %1.</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>Hay colores RGB junto a colores CMYK.</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>Sus permisos no dejan %1.</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>Declara cumplir %1.</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>Declara cumplir %1 y no tiene intención de salida.</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>Remite a otros archivos, que nunca se cargan (referencias: %1).</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>Elementos con filtros que se convierten en imágenes al imprimir: %1.</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>Hay algo dibujado hasta %1 pt fuera de la página.</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>Solo se examinaron las primeras %1 páginas.</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>La imagen mide %1 mm de ancho; las columnas, %2 mm.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>El archivo está envuelto como %1.</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 requiere el nivel de lenguaje %2, y la cabecera declara: %3.</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>ninguno superior a 1</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 no debe estar en un archivo EPS.</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>Se declara %1, y la línea %2 contiene el byte %3.</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 está después de %2.</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 termina lo que no empezó.</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 no tiene final.</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>La vista previa incrustada está mal formada.</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>La vista previa incrustada es demasiado grande.</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>La vista previa incrustada está fuera del archivo.</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>La vista previa no es una imagen TIFF legible.</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>La vista previa supera los %1 megapíxeles.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>El metarchivo de Windows incrustado está dañado.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>El metarchivo de Windows incrustado no indica ningún tamaño.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>Un mapa de bits del metarchivo de Windows está dañado.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>Un mapa de bits del metarchivo de Windows es de un tipo que no se dibuja.</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>La parte de Norvex que necesita esta imagen falta o está dañada: %1.</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>Las medidas de la imagen son demasiado grandes para procesarlas.</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>No se puede esperar al proceso de la imagen: hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>No se pudo establecer la conexión con un proceso de imagen.</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>La imagen no se puede generar con este tamaño o en este lugar.</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>la imagen es demasiado grande para dibujarla sin juntas</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>no había memoria suficiente para un trabajo en segundo plano</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>No hay ninguna imagen.</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>Estos píxeles no se pueden convertir.</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>El perfil de la imprenta no se puede usar.</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>Le falta una sección.</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>No tiene final.</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>El origen no tiene PostScript.</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>El origen no tiene comentarios tras los que pueda ir una vista previa.</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>El documento tiene una descripción, pero ningún título que guardar con ella.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>No es PostScript encapsulado: no empieza con %!.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>No es PostScript encapsulado: no empieza con %! ni indica ningún cuadro delimitador.</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>El documento está protegido por cifrado y no permite %1; lo que se hace con él no está protegido.</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimir</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>modificar</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>copiar</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>El operador de Illustrator %1 no se entiende y se omitió.</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>El operador de Illustrator %1 se omitió donde no se entienden sus operandos.</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>El patrón %1 no está en el archivo en una forma que se entienda y se omitió.</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>El degradado %1 no está en el archivo: lo sustituye un color liso.</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>La imagen colocada %1 no está en el archivo.</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>Se omitió un pdfmark con operandos incorrectos.</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>Una parte del dibujo no se pudo dibujar (%1).</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>La página tiene errores; puede que falte algo en sus planchas.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3.</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>No existe %1, solo [limits] y [severities].</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 es un número a partir de 0.</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb es true o false.</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces es una lista de nombres.</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm es una lista de números.</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>No existe el límite %1.</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>No existe la regla %1.</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 es uno de: error, warning, note, off.</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>No es ni una [tabla] ni un nombre con = y un valor.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 no es un archivo corriente, como debe serlo un perfil.</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>No existe el perfil %1 ni un archivo con ese nombre; los perfiles son: %2.</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 es demasiado grande para un perfil.</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock: activo, versión %1.</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock: no disponible.</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>No hay reglas del núcleo sobre archivos.</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>Solo puede leerse lo que los motores necesitan y escribirse archivos temporales.</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>Nada más se enumera, se elimina ni se inicia.</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>No hay TCP.</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>No hay señales ni sockets abstractos hacia otros.</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>Los dispositivos no pueden controlarse.</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>Esta versión no cubre: %1.</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>señales y sockets abstractos</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>control de dispositivos</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>truncado de archivos</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>Llamadas al sistema (seccomp): activo.</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>Solo las llamadas de una lista: ni programas, procesos, sockets, seguimiento, montajes, claves ni cambios de permisos o propietarios.</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>Los motores no abren nada para escritura.</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>Llamadas al sistema (seccomp): no disponible.</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>Se permite cualquier llamada.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>Vista de archivos (espacios de nombres de usuario y de montaje): activa.</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>No existen más archivos que los que los motores necesitan, y todos salvo los temporales son de solo lectura.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>Vista de archivos (espacios de nombres de usuario y de montaje): no disponible.</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>El sistema no se los permite a este usuario.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>Red y mensajes (espacios de nombres): activo.</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>No existe ninguna red.</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>No existen memoria compartida ni colas de otros.</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>Para una sola imagen en la línea de órdenes: desactivado, pues requieren tiempo.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>Red y mensajes (espacios de nombres): no disponible.</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>Lo demás que está activo mantiene las imágenes alejadas de ello.</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>Límites: memoria, tiempo de procesador, tamaño y número de archivos, archivos temporales; sin volcados de memoria.</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>Esta compilación se vigila a sí misma, para lo cual omite capas.</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>Cada imagen se lee en un proceso propio confinado de este modo.</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>Nada impide que una imagen acceda a los archivos de este usuario: norvex se niega a leer ninguna.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
</context>
</TS>
