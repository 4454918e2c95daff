<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>About Norvex</source>
        <translation>À propos de Norvex</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Bad data.</source>
        <translation>Le fichier ne contient aucune donnée lisible.</translation>
    </message>
    <message>
        <source>Fonts:</source>
        <translation>Polices :</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Couleurs utilisées :</translation>
    </message>
    <message>
        <source>%1 What is shown was read before.</source>
        <translation>%1 Ce qui est affiché a été lu auparavant.</translation>
    </message>
    <message>
        <source>Bounding box:</source>
        <translation>Cadre de délimitation :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Canceled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Chooses pictures and opens each in a window of its own</source>
        <translation>Choisit des images et ouvre chacune dans sa propre fenêtre</translation>
    </message>
    <message>
        <source>Clear the list</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Fermer la barre de recherche</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Espace de couleurs :</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Commandes et leurs touches</translation>
    </message>
    <message>
        <source>Compressed SVG image (SVGZ)</source>
        <translation>Image SVG compressée (SVGZ)</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Copy Selected Text</source>
        <translation>Copier le texte sélectionné</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copie en cours…</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright :</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Créé le :</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Créateur :</translation>
    </message>
    <message>
        <source>D.M.S.</source>
        <translation>Degrés, minutes et secondes : 12,3045 signifie 12° 30′ 45″</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Down by %1 pt</source>
        <translation>%1 pt vers le bas</translation>
    </message>
    <message>
        <source>Drag twice to mark a rectangle. Drag with the Ctrl key held to take it to another program as a file.</source>
        <translation>Faites glisser deux fois pour délimiter un rectangle. Faites-le glisser avec la touche Ctrl enfoncée pour le transmettre à un autre programme comme fichier.</translation>
    </message>
    <message>
        <source>Drawing…</source>
        <translation>Dessin en cours…</translation>
    </message>
    <message>
        <source>EPS, Illustrator, PDF and SVG pictures</source>
        <translation>Images EPS, Illustrator, PDF et SVG</translation>
    </message>
    <message>
        <source>Encapsulated PostScript (EPS)</source>
        <translation>PostScript encapsulé (EPS)</translation>
    </message>
    <message>
        <source>Encapsulated PostScript with interchange preview (EPSI)</source>
        <translation>PostScript encapsulé avec aperçu d’échange (EPSI)</translation>
    </message>
    <message>
        <source>Encoding</source>
        <translation>Encodage du texte source</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Encodage :</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Fichier de ce document</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Pour :</translation>
    </message>
    <message>
        <source>GIF image</source>
        <translation>Image GIF</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Hide extension</source>
        <translation>Masquer l’extension</translation>
    </message>
    <message>
        <source>High resolution:</source>
        <translation>Haute résolution :</translation>
    </message>
    <message>
        <source>Higher by %1 pt</source>
        <translation>Plus haut de %1 pt</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>JPEG image</source>
        <translation>Image JPEG</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Pre&amp;ferences…</source>
        <translation>Pré&amp;férences…</translation>
    </message>
    <message>
        <source>Di&amp;m Outside of Selection</source>
        <translation>E&amp;stomper l’extérieur de la sélection</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>&amp;Window fits picture</source>
        <translation>La &amp;fenêtre s’adapte à l’image</translation>
    </message>
    <message>
        <source>No larger than the picture, and smaller with it.</source>
        <translation>Jamais plus grande que l’image ; elle rétrécit avec elle.</translation>
    </message>
    <message>
        <source>Chec&amp;kerboard behind new pictures</source>
        <translation>&amp;Damier derrière les nouvelles images</translation>
    </message>
    <message>
        <source>Shows where nothing is painted, instead of the background colour.</source>
        <translation>Montre les endroits où rien n’est peint, au lieu de la couleur d’arrière-plan.</translation>
    </message>
    <message>
        <source>Di&amp;m what is outside of the selection</source>
        <translation>E&amp;stomper ce qui est hors de la sélection</translation>
    </message>
    <message>
        <source>What is copied, saved or printed stands out.</source>
        <translation>Met en évidence ce qui est copié, enregistré ou imprimé.</translation>
    </message>
    <message>
        <source>&amp;Unit of lengths:</source>
        <translation>&amp;Unité de longueur :</translation>
    </message>
    <message>
        <source>Of coordinates, of the size of a selection, and of typed numbers.</source>
        <translation>Pour les coordonnées, la taille d’une sélection et les nombres saisis.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Picas</source>
        <translation>Picas</translation>
    </message>
    <message>
        <source>&amp;Reload changed files by itself</source>
        <translation>&amp;Recharger automatiquement les fichiers modifiés</translation>
    </message>
    <message>
        <source>Otherwise a bar in the window asks.</source>
        <translation>Sinon, une barre dans la fenêtre pose la question.</translation>
    </message>
    <message>
        <source>R&amp;emember files</source>
        <translation>&amp;Mémoriser les fichiers</translation>
    </message>
    <message>
        <source>Recent files, and how their pictures were shown. Switching it off forgets all.</source>
        <translation>Les fichiers récents et la manière dont leurs images étaient affichées. Si vous le désactivez, tout est oublié.</translation>
    </message>
    <message>
        <source>C&amp;lear History</source>
        <translation>&amp;Effacer l’historique</translation>
    </message>
    <message>
        <source>Forgets the recent files, and how their pictures were shown.</source>
        <translation>Oublie les fichiers récents et la manière dont leurs images étaient affichées.</translation>
    </message>
    <message>
        <source>Colours:</source>
        <translation>Couleurs :</translation>
    </message>
    <message>
        <source>RGB for screens</source>
        <translation>RVB pour les écrans</translation>
    </message>
    <message>
        <source>Shades of grey</source>
        <translation>Nuances de gris</translation>
    </message>
    <message>
        <source>CMYK for print</source>
        <translation>CMJN pour l’impression</translation>
    </message>
    <message>
        <source>&amp;Real Size on This Screen</source>
        <translation>Taille réelle s&amp;ur cet écran</translation>
    </message>
    <message>
        <source>Size the selection</source>
        <translation>Redimensionner la sélection</translation>
    </message>
    <message>
        <source>Drag a square beside it</source>
        <translation>Faire glisser un carré sur son bord</translation>
    </message>
    <message>
        <source>Move the selection</source>
        <translation>Déplacer la sélection</translation>
    </message>
    <message>
        <source>Drag its size</source>
        <translation>Faire glisser l’étiquette de sa taille</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Left by %1 pt</source>
        <translation>%1 pt vers la gauche</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Lower by %1 pt</source>
        <translation>Moins haut de %1 pt</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>Déplacer la sélection</translation>
    </message>
    <message>
        <source>Narrower by %1 pt</source>
        <translation>Plus étroit de %1 pt</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>Aucun fichier récent</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Absent de cette page</translation>
    </message>
    <message>
        <source>Not possible for this picture: %1</source>
        <translation>Impossible pour cette image : %1</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Rien n’est sélectionné.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Only files on this computer can be opened.</source>
        <translation>Seuls les fichiers de cet ordinateur peuvent être ouverts.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Opening was stopped</source>
        <translation>L’ouverture a été arrêtée</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Ouverture en cours…</translation>
    </message>
    <message>
        <source>Opens EPS, Illustrator, PDF and SVG pictures and hands any part of them on as vectors.</source>
        <translation>Ouvre des images EPS, Illustrator, PDF et SVG et en transmet n’importe quelle partie sous forme vectorielle.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>OrderfrontColorWell</source>
        <translation>Afficher le sélecteur de couleurs</translation>
    </message>
    <message>
        <source>PDF document</source>
        <translation>Document PDF</translation>
    </message>
    <message>
        <source>PNG image</source>
        <translation>Image PNG</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pictures that you open are listed here.</source>
        <translation>Les images que vous ouvrez apparaissent ici.</translation>
    </message>
    <message>
        <source>Please retry with other format.</source>
        <translation>Veuillez réessayer avec un autre format.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer…</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Resize Selection</source>
        <translation>Redimensionner la sélection</translation>
    </message>
    <message>
        <source>Right by %1 pt</source>
        <translation>%1 pt vers la droite</translation>
    </message>
    <message>
        <source>RotateImageByMousedragg</source>
        <translation>Faites glisser pour tourner l’image. Maintenez Maj pour avancer par pas de 15°, double-cliquez pour revenir à 0°.</translation>
    </message>
    <message>
        <source>SVG image</source>
        <translation>Image SVG</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save Selection</source>
        <translation>Enregistrer la sélection</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>SaveAs</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Enregistrer dans…</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Défiler latéralement</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Défiler verticalement</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Selected from %1, %2 to %3, %4: %5 by %6 points.</source>
        <translation>Sélection de %1 ; %2 à %3 ; %4 : %5 sur %6 points.</translation>
    </message>
    <message>
        <source>Selected range of image data is written or displayed.</source>
        <translation>Écrire la sélection, ou ce qui est visible, dans un fichier.</translation>
    </message>
    <message>
        <source>SelectedRectangle</source>
        <translation>Coins du rectangle sélectionné</translation>
    </message>
    <message>
        <source>Selection is determined by dragging the mouse twice.</source>
        <translation>Faites glisser une fois pour placer le départ, une seconde fois pour étirer le rectangle.</translation>
    </message>
    <message>
        <source>SourceCode</source>
        <translation>Texte source du document</translation>
    </message>
    <message>
        <source>TIFF image</source>
        <translation>Image TIFF</translation>
    </message>
    <message>
        <source>The picture is still being printed.</source>
        <translation>L’image est encore en cours d’impression.</translation>
    </message>
    <message>
        <source>A file is still being written.</source>
        <translation>Un fichier est encore en cours d’écriture.</translation>
    </message>
    <message>
        <source>Close When Finished</source>
        <translation>Fermer une fois terminé</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Arrêter et fermer</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>Laisser ouvert</translation>
    </message>
    <message>
        <source>The writing was stopped</source>
        <translation>L’écriture a été arrêtée</translation>
    </message>
    <message>
        <source>The file was deleted or moved. What is shown was read before.</source>
        <translation>Le fichier a été supprimé ou déplacé. Ce qui est affiché a été lu auparavant.</translation>
    </message>
    <message>
        <source>Preparing “%1” for printing…</source>
        <translation>Préparation de « %1 » pour l’impression…</translation>
    </message>
    <message>
        <source>“%1” exists already. Do you want to replace it?</source>
        <translation>« %1 » existe déjà. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>The file has changed on disk.</source>
        <translation>Le fichier a changé sur le disque.</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>L’image ne peut pas être affichée.</translation>
    </message>
    <message>
        <source>The picture cannot be written in this format</source>
        <translation>L’image ne peut pas être écrite dans ce format</translation>
    </message>
    <message>
        <source>The picture could not be copied. The clipboard holds what it held before.</source>
        <translation>L’image n’a pas pu être copiée. Le contenu du presse-papiers reste inchangé.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are copied onto the paste board.</source>
        <translation>Copier la sélection, ou ce qui est visible, dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The range of the selection or visible rect are printed.</source>
        <translation>Imprimer la sélection, ou ce qui est visible.</translation>
    </message>
    <message>
        <source>The selection starts at %1, %2.</source>
        <translation>La sélection commence à %1 ; %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for this</source>
        <translation>Il n’y a pas assez de mémoire pour cela</translation>
    </message>
    <message>
        <source>This could not be done.</source>
        <translation>Cela n’a pas pu être fait.</translation>
    </message>
    <message>
        <source>This is not an EPS, Illustrator, PDF or SVG picture.</source>
        <translation>Ce n’est pas une image EPS, Illustrator, PDF ou SVG.</translation>
    </message>
    <message>
        <source>The file's name is not text in UTF-8. Please rename the file.</source>
        <translation>Le nom du fichier n’est pas du texte en UTF-8. Veuillez renommer le fichier.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Up by %1 pt</source>
        <translation>%1 pt vers le haut</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>ViewBox</source>
        <translation>viewBox ou limites de l’image, dans ses propres unités</translation>
    </message>
    <message>
        <source>What it holds will be lost.</source>
        <translation>Son contenu sera perdu.</translation>
    </message>
    <message>
        <source>Wider by %1 pt</source>
        <translation>Plus large de %1 pt</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Écriture en cours…</translation>
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
        <translation>ou déposez des images ici</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>« %1 » n’a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>%1 files could not be opened.</source>
        <translation>%1 fichiers n’ont pas pu être ouverts.</translation>
    </message>
    <message>
        <source>“%1” exists already.</source>
        <translation>« %1 » existe déjà.</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Bas :</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>&amp;Fit on one page</source>
        <translation>A&amp;juster à une page</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>Pa&amp;ysage</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Right:</source>
        <translation>&amp;Droite :</translation>
    </message>
    <message>
        <source>&amp;Scaling:</source>
        <translation>&amp;Échelle :</translation>
    </message>
    <message>
        <source>&amp;Horizontally</source>
        <translation>Hori&amp;zontalement</translation>
    </message>
    <message>
        <source>&amp;Vertically</source>
        <translation>&amp;Verticalement</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Fro&amp;m</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>Hea&amp;der and footer</source>
        <translation>En-tête et &amp;pied de page</translation>
    </message>
    <message>
        <source>Centred:</source>
        <translation>Centrer :</translation>
    </message>
    <message>
        <source>Centred horizontally</source>
        <translation>Centrer horizontalement</translation>
    </message>
    <message>
        <source>Centred vertically</source>
        <translation>Centrer verticalement</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Lef&amp;t:</source>
        <translation>&amp;Gauche :</translation>
    </message>
    <message>
        <source>This printer is no longer there.</source>
        <translation>Cette imprimante n’existe plus.</translation>
    </message>
    <message>
        <source>Print Selected or Visible Pa&amp;rt…</source>
        <translation>Imprimer la par&amp;tie sélectionnée ou visible…</translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation>Recherche d’imprimantes…</translation>
    </message>
    <message>
        <source>Makes the picture smaller until one page holds it</source>
        <translation>Réduit l’image jusqu’à ce qu’elle tienne sur une page</translation>
    </message>
    <message>
        <source>Margins:</source>
        <translation>Marges :</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation :</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;rimante :</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>&amp;Mise en page…</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages :</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>P&amp;apier :</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>P&amp;ortrait</translation>
    </message>
    <message>
        <source>Preview of the page</source>
        <translation>Aperçu de la page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>Imprimer « %1 »</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Printing “%1”: page %2 of %3…</source>
        <translation>Impression de « %1 » : page %2 sur %3…</translation>
    </message>
    <message>
        <source>Printing “%1”…</source>
        <translation>Impression de « %1 »…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Sa&amp;ve…</source>
        <translation>E&amp;nregistrer…</translation>
    </message>
    <message>
        <source>Save as PDF file</source>
        <translation>Enregistrer comme fichier PDF</translation>
    </message>
    <message>
        <source>Save the pages as PDF</source>
        <translation>Enregistrer les pages en PDF</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>T&amp;op:</source>
        <translation>&amp;Haut :</translation>
    </message>
    <message>
        <source>Takes no jobs</source>
        <translation>N’accepte pas de travaux</translation>
    </message>
    <message>
        <source>The date above the picture and the file's location below it, on every page</source>
        <translation>Sur chaque page, la date au-dessus de l’image et l’emplacement du fichier au-dessous</translation>
    </message>
    <message>
        <source>The margins leave no room on the paper.</source>
        <translation>Les marges ne laissent pas de place sur le papier.</translation>
    </message>
    <message>
        <source>The pages become a PDF file.</source>
        <translation>Les pages sont écrites dans un fichier PDF.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Il n’y a pas d’imprimante.</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>“%1” was not printed.</source>
        <translation>« %1 » n’a pas été imprimé.</translation>
    </message>
    <message>
        <source>With the mouse</source>
        <translation>Avec la souris</translation>
    </message>
    <message>
        <source>Search commands and keys</source>
        <translation>Rechercher des commandes et des touches</translation>
    </message>
    <message>
        <source>Is the preview added the occasion where it writes out?</source>
        <translation>Faut-il ajouter au fichier un aperçu pour les programmes qui ne savent pas dessiner l’EPS ?</translation>
    </message>
    <message>
        <source>With preview</source>
        <translation>Avec aperçu</translation>
    </message>
    <message>
        <source>The new file would hold less than the picture does.</source>
        <translation>Le nouveau fichier contiendrait moins que l’image.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. The interpreter of PostScript is under the GNU Affero General Public License, version 3 or later.</source>
        <translation>Logiciel libre sous la licence publique générale GNU, version 3 ou ultérieure. L’interpréteur PostScript est sous la licence publique générale GNU Affero, version 3 ou ultérieure.</translation>
    </message>
    <message>
        <source>The drawing was stopped</source>
        <translation>Le dessin a été arrêté</translation>
    </message>
    <message>
        <source>Norvex ended unexpectedly the last time.</source>
        <translation>La dernière fois, Norvex s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>“%1” was open then, and may be the reason.</source>
        <translation>« %1 » était alors ouvert et en est peut-être la cause.</translation>
    </message>
    <message>
        <source>Do Not Open</source>
        <translation>Ne pas ouvrir</translation>
    </message>
    <message>
        <source>Open It Again</source>
        <translation>L’ouvrir à nouveau</translation>
    </message>
    <message>
        <source>%1 files were open then. “%2” was used last, and may be the reason.</source>
        <translation>%1 fichiers étaient alors ouverts. « %2 » a été utilisé en dernier et en est peut-être la cause.</translation>
    </message>
    <message>
        <source>Open the Others</source>
        <translation>Ouvrir les autres</translation>
    </message>
    <message>
        <source>Open All Again</source>
        <translation>Tout ouvrir à nouveau</translation>
    </message>
    <message>
        <source>Norvex Manual</source>
        <translation>Manuel de Norvex</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Remember Files</source>
        <translation>Mémoriser les fichiers</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Rechercher dans le manuel</translation>
    </message>
    <message>
        <source>Topics</source>
        <translation>Sujets</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
    <message>
        <source>Place the first corner of a selection</source>
        <translation>Placer le premier coin d’une sélection</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Glisser</translation>
    </message>
    <message>
        <source>Draw the selection from there</source>
        <translation>Étirer la sélection à partir de là</translation>
    </message>
    <message>
        <source>Drag again</source>
        <translation>Glisser à nouveau</translation>
    </message>
    <message>
        <source>Take the selection to another program</source>
        <translation>Transmettre la sélection à un autre programme</translation>
    </message>
    <message>
        <source>Ctrl + Drag</source>
        <translation>Ctrl + glisser</translation>
    </message>
    <message>
        <source>Zoom at the pointer</source>
        <translation>Zoomer sous le pointeur</translation>
    </message>
    <message>
        <source>Ctrl + Wheel</source>
        <translation>Ctrl + molette</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>Déplacer l’image</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Commands for the picture</source>
        <translation>Commandes pour l’image</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Bouton droit</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>%1 What is shown is what it had drawn until then.</source>
        <translation>%1 L’affichage montre ce qui était dessiné jusque-là.</translation>
    </message>
    <message>
        <source>How the documents that it opens are confined:</source>
        <translation>Comment les documents ouverts sont isolés :</translation>
    </message>
    <message>
        <source>Read as:</source>
        <translation>Lire comme :</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>The encoding in which comments and source text are read</source>
        <translation>L’encodage dans lequel les commentaires et le texte source sont lus</translation>
    </message>
    <message>
        <source>The source is not valid in %1.</source>
        <translation>Le texte source n’est pas valide en %1.</translation>
    </message>
    <message>
        <source>A guess, as nothing says how the source is encoded. Read as %1:</source>
        <translation>Une supposition, car rien n’indique comment le texte source est encodé. Lu comme %1 :</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>What the library that reads the picture says</source>
        <translation>Ce que dit la bibliothèque qui lit l’image</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>None preview</source>
        <translation>Sans aperçu</translation>
    </message>
    <message>
        <source>WebP image</source>
        <translation>Image WebP</translation>
    </message>
    <message>
        <source>Copied %1 pt</source>
        <translation>%1 pt copiés</translation>
    </message>
    <message>
        <source>Other Folder…</source>
        <translation>Autre dossier…</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Folder for the exported file</source>
        <translation>Dossier du fichier exporté</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <source>EPS with TIFF preview</source>
        <translation>EPS avec aperçu TIFF</translation>
    </message>
    <message>
        <source>This page</source>
        <translation>Cette page</translation>
    </message>
    <message>
        <source>Part:</source>
        <translation>Partie :</translation>
    </message>
    <message>
        <source> pixels an inch</source>
        <translation> pixels par pouce</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Résolution :</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>Remplir avec</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>Arrière-plan :</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Quality:</source>
        <translation>Qualité :</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Making a preview…</source>
        <translation>Création d’un aperçu…</translation>
    </message>
    <message>
        <source>File size: %1</source>
        <translation>Taille du fichier : %1</translation>
    </message>
    <message>
        <source>Not possible</source>
        <translation>Impossible</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>E&amp;xporter…</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>L’image est trop grande.</translation>
    </message>
    <message>
        <source>Exported “%1”</source>
        <translation>« %1 » exporté</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Visible part</source>
        <translation>Partie visible</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Toute l’image</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Toutes les pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>Page &amp;Thumbnails</source>
        <translation>&amp;Vignettes des pages</translation>
    </message>
    <message>
        <source>Page %1 has no area.</source>
        <translation>La page %1 n’a pas de surface.</translation>
    </message>
    <message>
        <source>Where the pointer is in the picture. Click for another unit.</source>
        <translation>Où se trouve le pointeur dans l’image. Cliquez pour changer d’unité.</translation>
    </message>
    <message>
        <source>Unit of lengths</source>
        <translation>Unité de longueur</translation>
    </message>
    <message>
        <source>&amp;Next Page</source>
        <translation>Page &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Page</source>
        <translation>Page &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;First Page</source>
        <translation>P&amp;remière page</translation>
    </message>
    <message>
        <source>&amp;Last Page</source>
        <translation>&amp;Dernière page</translation>
    </message>
    <message>
        <source>&amp;Go to Page…</source>
        <translation>&amp;Aller à la page…</translation>
    </message>
    <message>
        <source>&amp;Window Fits Picture</source>
        <translation>Adapter la &amp;fenêtre à l’image</translation>
    </message>
    <message>
        <source>Reload Changed Files b&amp;y Itself</source>
        <translation>Recharger &amp;automatiquement les fichiers modifiés</translation>
    </message>
    <message>
        <source>Select Rectangle</source>
        <translation>Sélectionner un rectangle</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Fit &amp;Width</source>
        <translation>A&amp;juster à la largeur</translation>
    </message>
    <message>
        <source>Next Picture in F&amp;older</source>
        <translation>Image suivante du d&amp;ossier</translation>
    </message>
    <message>
        <source>Previous Pictu&amp;re in Folder</source>
        <translation>Ima&amp;ge précédente du dossier</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>&amp;Annuler le changement de sélection</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>Réta&amp;blir le changement de sélection</translation>
    </message>
    <message>
        <source>Select Rectan&amp;gle…</source>
        <translation>Sélectionner un rectan&amp;gle…</translation>
    </message>
    <message>
        <source>From the left:</source>
        <translation>Depuis la gauche :</translation>
    </message>
    <message>
        <source>From below:</source>
        <translation>Depuis le bas :</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur :</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur :</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Still working: wait, or stop and show what there is.</source>
        <translation>Toujours en cours : vous pouvez attendre, ou arrêter et voir ce qui est déjà là.</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attendre</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>Vérification…</translation>
    </message>
    <message>
        <source>What the picture is for</source>
        <translation>Usage prévu de l’image</translation>
    </message>
    <message>
        <source>For Any Use</source>
        <translation>Pour tout usage</translation>
    </message>
    <message>
        <source>For Print</source>
        <translation>Pour l’impression</translation>
    </message>
    <message>
        <source>For a Journal</source>
        <translation>Pour une revue</translation>
    </message>
    <message>
        <source>For the Web</source>
        <translation>Pour le Web</translation>
    </message>
    <message>
        <source>For an Archive</source>
        <translation>Pour l’archivage</translation>
    </message>
    <message>
        <source>From a File…</source>
        <translation>Depuis un fichier…</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Résultats de la vérification</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien à signaler.</translation>
    </message>
    <message>
        <source>%1 more are not shown.</source>
        <translation>%1 autres ne sont pas affichés.</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Réparer…</translation>
    </message>
    <message>
        <source>Repair All…</source>
        <translation>Tout réparer…</translation>
    </message>
    <message>
        <source>Writes a mended copy of the file</source>
        <translation>Écrit une copie réparée du fichier</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 erreur</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 erreurs</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 avertissement</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 avertissements</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>1 remarque</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>%1 remarques</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>at %1, %2 pt</source>
        <translation>en %1 ; %2 pt</translation>
    </message>
    <message>
        <source>The check was stopped.</source>
        <translation>La vérification a été arrêtée.</translation>
    </message>
    <message>
        <source>The file has changed while it was checked.</source>
        <translation>Le fichier a changé pendant la vérification.</translation>
    </message>
    <message>
        <source>There is no file to check.</source>
        <translation>Il n’y a aucun fichier à vérifier.</translation>
    </message>
    <message>
        <source>Not everything could be checked. %1</source>
        <translation>Tout n’a pas pu être vérifié. %1</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Profiles (*.toml)</source>
        <translation>Profils (*.toml)</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Réparer</translation>
    </message>
    <message>
        <source>A mended copy of the file is written. What it draws stays the same.</source>
        <translation>Une copie réparée du fichier est écrite. Ce qu’elle dessine reste identique.</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu :</translation>
    </message>
    <message>
        <source>As it is</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>Made anew</source>
        <translation>Recréé</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omis</translation>
    </message>
    <message>
        <source>Repairing…</source>
        <translation>Réparation…</translation>
    </message>
    <message>
        <source>Nothing had to be changed.</source>
        <translation>Rien n’a dû être modifié.</translation>
    </message>
    <message>
        <source>This stays as it is:</source>
        <translation>Ceci reste inchangé :</translation>
    </message>
    <message>
        <source>“%1” is written.</source>
        <translation>« %1 » a été écrit.</translation>
    </message>
    <message>
        <source>Open It</source>
        <translation>L’ouvrir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Inspector in t&amp;he Window</source>
        <translation>Informations dans la fenêtr&amp;e</translation>
    </message>
    <message>
        <source>Go to Inspector or Pi&amp;cture</source>
        <translation>Aller aux informations ou à l’i&amp;mage</translation>
    </message>
    <message>
        <source>The program lies in a wrapping of another system</source>
        <translation>Le programme est enveloppé dans le format d’un autre système</translation>
    </message>
    <message>
        <source>A section of the binary header lies outside the file</source>
        <translation>Une section de l’en-tête binaire est hors du fichier</translation>
    </message>
    <message>
        <source>Sections of the binary header overlap</source>
        <translation>Des sections de l’en-tête binaire se chevauchent</translation>
    </message>
    <message>
        <source>Bytes before the first line</source>
        <translation>Octets avant la première ligne</translation>
    </message>
    <message>
        <source>Bytes behind the program's end</source>
        <translation>Octets après la fin du programme</translation>
    </message>
    <message>
        <source>The file is cut off</source>
        <translation>Le fichier est tronqué</translation>
    </message>
    <message>
        <source>The first line is not that of a PostScript file</source>
        <translation>La première ligne n’est pas celle d’un fichier PostScript</translation>
    </message>
    <message>
        <source>The first line does not declare EPSF</source>
        <translation>La première ligne ne déclare pas EPSF</translation>
    </message>
    <message>
        <source>The first line declares a version that does not exist</source>
        <translation>La première ligne déclare une version qui n’existe pas</translation>
    </message>
    <message>
        <source>There is no %%BoundingBox</source>
        <translation>Il n’y a pas de %%BoundingBox</translation>
    </message>
    <message>
        <source>%%BoundingBox: (atend) without a box at the end</source>
        <translation>%%BoundingBox: (atend) sans cadre à la fin</translation>
    </message>
    <message>
        <source>%%BoundingBox does not hold four numbers</source>
        <translation>%%BoundingBox ne contient pas quatre nombres</translation>
    </message>
    <message>
        <source>The bounding box is empty</source>
        <translation>Le cadre de délimitation est vide</translation>
    </message>
    <message>
        <source>%%BoundingBox holds numbers that are not whole</source>
        <translation>%%BoundingBox contient des nombres non entiers</translation>
    </message>
    <message>
        <source>%%BoundingBox does not enclose %%HiResBoundingBox, or is far larger</source>
        <translation>%%BoundingBox n’englobe pas %%HiResBoundingBox, ou est bien plus grand</translation>
    </message>
    <message>
        <source>Ink lies outside the bounding box</source>
        <translation>Quelque chose est dessiné hors du cadre de délimitation</translation>
    </message>
    <message>
        <source>The bounding box is larger than the ink</source>
        <translation>Le cadre de délimitation est plus grand que le dessin</translation>
    </message>
    <message>
        <source>The program draws nothing that is not white</source>
        <translation>Le programme ne dessine rien qui ne soit blanc</translation>
    </message>
    <message>
        <source>The program stops with a PostScript error</source>
        <translation>Le programme s’arrête sur une erreur PostScript</translation>
    </message>
    <message>
        <source>The interpreter had something to remark</source>
        <translation>L’interpréteur a fait une remarque</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage manque</translation>
    </message>
    <message>
        <source>An operator that has no place in an EPS file</source>
        <translation>Un opérateur qui n’a pas sa place dans un fichier EPS</translation>
    </message>
    <message>
        <source>Operators of a higher language level than the comments declare</source>
        <translation>Opérateurs d’un niveau de langage supérieur à celui déclaré</translation>
    </message>
    <message>
        <source>%%EndComments is missing</source>
        <translation>%%EndComments manque</translation>
    </message>
    <message>
        <source>Comments stand in the wrong order</source>
        <translation>Des commentaires ne sont pas dans le bon ordre</translation>
    </message>
    <message>
        <source>A section begins and does not end, or the other way round</source>
        <translation>Une section commence sans finir, ou l’inverse</translation>
    </message>
    <message>
        <source>Lines of more than 255 bytes</source>
        <translation>Lignes de plus de 255 octets</translation>
    </message>
    <message>
        <source>Lines end in different ways</source>
        <translation>Les lignes finissent de différentes manières</translation>
    </message>
    <message>
        <source>Other bytes than %%DocumentData declares</source>
        <translation>D’autres octets que ceux déclarés par %%DocumentData</translation>
    </message>
    <message>
        <source>The file needs fonts that it does not bring</source>
        <translation>Le fichier a besoin de polices qu’il n’apporte pas</translation>
    </message>
    <message>
        <source>There is no preview</source>
        <translation>Il n’y a pas d’aperçu</translation>
    </message>
    <message>
        <source>The preview cannot be read</source>
        <translation>L’aperçu est illisible</translation>
    </message>
    <message>
        <source>The preview shows another picture than the program draws</source>
        <translation>L’aperçu montre une autre image que celle dessinée</translation>
    </message>
    <message>
        <source>The preview has another shape than the bounding box</source>
        <translation>L’aperçu n’a pas la forme du cadre de délimitation</translation>
    </message>
    <message>
        <source>A font is neither in the file nor on this machine</source>
        <translation>Une police n’est ni dans le fichier ni sur cette machine</translation>
    </message>
    <message>
        <source>A font is not embedded</source>
        <translation>Une police n’est pas incorporée</translation>
    </message>
    <message>
        <source>A font is embedded as a whole</source>
        <translation>Une police est incorporée en entier</translation>
    </message>
    <message>
        <source>A Type 3 font</source>
        <translation>Une police Type 3</translation>
    </message>
    <message>
        <source>Text smaller than the profile allows</source>
        <translation>Texte plus petit que le profil ne le permet</translation>
    </message>
    <message>
        <source>A colour space that the profile does not name</source>
        <translation>Espace colorimétrique que le profil ne nomme pas</translation>
    </message>
    <message>
        <source>RGB colours where the profile wants none</source>
        <translation>Couleurs RVB que le profil n’admet pas</translation>
    </message>
    <message>
        <source>RGB in a CMYK picture</source>
        <translation>RVB dans une image CMJN</translation>
    </message>
    <message>
        <source>Spot inks</source>
        <translation>Tons directs</translation>
    </message>
    <message>
        <source>More ink in one place than the profile allows</source>
        <translation>Plus d’encre en un endroit que le profil ne le permet</translation>
    </message>
    <message>
        <source>White that overprints vanishes</source>
        <translation>Du blanc en surimpression disparaît</translation>
    </message>
    <message>
        <source>Black text that does not overprint</source>
        <translation>Texte noir sans surimpression</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Lines thinner than the profile allows</source>
        <translation>Traits plus fins que le profil ne le permet</translation>
    </message>
    <message>
        <source>An image has fewer pixels an inch than the profile asks for</source>
        <translation>Une image a moins de pixels par pouce que le profil n’en demande</translation>
    </message>
    <message>
        <source>Something is drawn outside the page's box</source>
        <translation>Quelque chose est dessiné hors du cadre de la page</translation>
    </message>
    <message>
        <source>The picture fits no column of the profile</source>
        <translation>L’image ne convient à aucune colonne du profil</translation>
    </message>
    <message>
        <source>A part of the page was not looked at</source>
        <translation>Une partie de la page n’a pas été examinée</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>Le fichier est endommagé</translation>
    </message>
    <message>
        <source>The document is encrypted</source>
        <translation>Le document est chiffré</translation>
    </message>
    <message>
        <source>Its permissions forbid printing or changing it</source>
        <translation>Ses droits interdisent l’impression ou la modification</translation>
    </message>
    <message>
        <source>It claims to keep a standard</source>
        <translation>Il déclare respecter une norme</translation>
    </message>
    <message>
        <source>It claims PDF/X or PDF/A and has no output intent</source>
        <translation>Il déclare PDF/X ou PDF/A sans intention de sortie</translation>
    </message>
    <message>
        <source>It needs other files, which are never loaded</source>
        <translation>Il a besoin d’autres fichiers, qui ne sont jamais chargés</translation>
    </message>
    <message>
        <source>Filters become images in print</source>
        <translation>Les filtres deviennent des images à l’impression</translation>
    </message>
    <message>
        <source>The size has no unit, or there is none</source>
        <translation>La taille n’a pas d’unité, ou manque</translation>
    </message>
    <message>
        <source>Scripts and animations are not run</source>
        <translation>Les scripts et les animations ne sont pas exécutés</translation>
    </message>
    <message>
        <source>repair takes the program out</source>
        <translation>La réparation extrait le programme</translation>
    </message>
    <message>
        <source>repair writes the header anew</source>
        <translation>La réparation réécrit l’en-tête</translation>
    </message>
    <message>
        <source>repair leaves them out</source>
        <translation>La réparation les supprime</translation>
    </message>
    <message>
        <source>fetch the file again</source>
        <translation>Récupérez le fichier à nouveau</translation>
    </message>
    <message>
        <source>repair writes it</source>
        <translation>La réparation l’écrit</translation>
    </message>
    <message>
        <source>repair writes the versions 3.0</source>
        <translation>La réparation écrit les versions 3.0</translation>
    </message>
    <message>
        <source>repair computes it</source>
        <translation>La réparation le calcule</translation>
    </message>
    <message>
        <source>repair writes whole numbers</source>
        <translation>La réparation écrit des nombres entiers</translation>
    </message>
    <message>
        <source>repair computes both</source>
        <translation>La réparation calcule les deux</translation>
    </message>
    <message>
        <source>write the file again from the program that made it</source>
        <translation>Réécrivez le fichier depuis le programme qui l’a créé</translation>
    </message>
    <message>
        <source>repair puts it in</source>
        <translation>La réparation l’insère</translation>
    </message>
    <message>
        <source>write the file again as EPS</source>
        <translation>Réécrivez le fichier en EPS</translation>
    </message>
    <message>
        <source>add %%LanguageLevel to the header</source>
        <translation>Ajoutez %%LanguageLevel à l’en-tête</translation>
    </message>
    <message>
        <source>repair puts those of the header in order</source>
        <translation>La réparation remet en ordre ceux de l’en-tête</translation>
    </message>
    <message>
        <source>most readers take them</source>
        <translation>La plupart des programmes les acceptent</translation>
    </message>
    <message>
        <source>declare %%DocumentData: Binary</source>
        <translation>Déclarez %%DocumentData: Binary</translation>
    </message>
    <message>
        <source>embed the fonts, or draw text as outlines</source>
        <translation>Incorporez les polices, ou vectorisez le texte</translation>
    </message>
    <message>
        <source>repair makes one</source>
        <translation>La réparation en crée un</translation>
    </message>
    <message>
        <source>embed the font</source>
        <translation>Incorporez la police</translation>
    </message>
    <message>
        <source>use a font with outlines</source>
        <translation>Utilisez une police vectorielle</translation>
    </message>
    <message>
        <source>set the text larger</source>
        <translation>Composez le texte plus grand</translation>
    </message>
    <message>
        <source>convert the colours</source>
        <translation>Convertissez les couleurs</translation>
    </message>
    <message>
        <source>choose colours with less ink</source>
        <translation>Choisissez des couleurs qui demandent moins d’encre</translation>
    </message>
    <message>
        <source>let it knock out</source>
        <translation>Mettez-le en défonce</translation>
    </message>
    <message>
        <source>let black text overprint</source>
        <translation>Mettez le texte noir en surimpression</translation>
    </message>
    <message>
        <source>flatten it where the printer asks for it</source>
        <translation>Aplatissez-la si l’imprimeur le demande</translation>
    </message>
    <message>
        <source>draw them thicker</source>
        <translation>Dessinez-les plus épais</translation>
    </message>
    <message>
        <source>place it smaller, or with more pixels</source>
        <translation>Placez-la plus petite, ou avec plus de pixels</translation>
    </message>
    <message>
        <source>enlarge the box, or leave it out</source>
        <translation>Agrandissez le cadre, ou supprimez-le</translation>
    </message>
    <message>
        <source>draw it for the column's width</source>
        <translation>Dessinez-la à la largeur de la colonne</translation>
    </message>
    <message>
        <source>convert it to PDF, and look whether anything is missing</source>
        <translation>Convertissez-le en PDF et vérifiez que rien ne manque</translation>
    </message>
    <message>
        <source>write it without encryption</source>
        <translation>Écrivez-le sans chiffrement</translation>
    </message>
    <message>
        <source>write it without restrictions</source>
        <translation>Écrivez-le sans restrictions</translation>
    </message>
    <message>
        <source>add the output intent</source>
        <translation>Ajoutez l’intention de sortie</translation>
    </message>
    <message>
        <source>embed them</source>
        <translation>Incorporez-les</translation>
    </message>
    <message>
        <source>draw the effect, or accept an image</source>
        <translation>Dessinez l’effet, ou acceptez une image</translation>
    </message>
    <message>
        <source>give width and height in mm, pt or in</source>
        <translation>Donnez largeur et hauteur en mm, pt ou in</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>Le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>The document is protected by a password.</source>
        <translation>Le document est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>La&amp;yers</source>
        <translation>&amp;Calques</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Calque %1</translation>
    </message>
    <message>
        <source>The document locks this layer.</source>
        <translation>Le document verrouille ce calque.</translation>
    </message>
    <message>
        <source>Find in P&amp;icture…</source>
        <translation>Rechercher dans l’i&amp;mage…</translation>
    </message>
    <message>
        <source>The text of the picture cannot be read.</source>
        <translation>Le texte de l’image ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Select &amp;Text</source>
        <translation>Sélectionner le t&amp;exte</translation>
    </message>
    <message>
        <source>Copy Te&amp;xt</source>
        <translation>Copier le te&amp;xte</translation>
    </message>
    <message>
        <source>Text copied</source>
        <translation>Texte copié</translation>
    </message>
    <message>
        <source>Links of this kind are not followed.</source>
        <translation>Les liens de ce type ne sont pas suivis.</translation>
    </message>
    <message>
        <source>No program here opens this address.</source>
        <translation>Aucun programme n’ouvre cette adresse ici.</translation>
    </message>
    <message>
        <source>The picture links to this address. Open it?</source>
        <translation>L’image renvoie à cette adresse. L’ouvrir ?</translation>
    </message>
    <message>
        <source>Open Address</source>
        <translation>Ouvrir l’adresse</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Encres</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Ici</translation>
    </message>
    <message>
        <source>Only This Ink</source>
        <translation>Seulement cette encre</translation>
    </message>
    <message>
        <source>All Inks</source>
        <translation>Toutes les encres</translation>
    </message>
    <message>
        <source>Inks as grey plates</source>
        <translation>Encres en plaques grises</translation>
    </message>
    <message>
        <source>The picture is separated into plates: %1</source>
        <translation>L’image est séparée en plaques : %1</translation>
    </message>
    <message>
        <source>Windows metafile, %1</source>
        <translation>Métafichier Windows, %1</translation>
    </message>
    <message>
        <source>Keep text as text, with its fonts</source>
        <translation>Conserver le texte comme texte, avec ses polices</translation>
    </message>
    <message>
        <source>Show the inks in the picture</source>
        <translation>Afficher les encres dans l’image</translation>
    </message>
    <message>
        <source>Simulate overprinting</source>
        <translation>Simuler la surimpression</translation>
    </message>
    <message>
        <source>Mark ink above</source>
        <translation>Signaler l’encre au-delà de</translation>
    </message>
    <message>
        <source>Limit of all inks together</source>
        <translation>Limite de toutes les encres ensemble</translation>
    </message>
    <message>
        <source>The page as its inks print it</source>
        <translation>La page telle que ses encres l’impriment</translation>
    </message>
    <message>
        <source>Most ink in one place: %1</source>
        <translation>Le plus d’encre en un point : %1</translation>
    </message>
    <message>
        <source>All inks under the pointer: %1</source>
        <translation>Toutes les encres sous le pointeur : %1</translation>
    </message>
    <message>
        <source>The page is being separated into its inks…</source>
        <translation>La page est séparée en ses encres…</translation>
    </message>
    <message>
        <source>There is no picture.</source>
        <translation>Il n’y a pas d’image.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>The shown page (%1)</source>
        <translation>La page affichée (%1)</translation>
    </message>
    <message>
        <source>All %1 pages</source>
        <translation>Les %1 pages</translation>
    </message>
    <message>
        <source>Some pages</source>
        <translation>Certaines pages</translation>
    </message>
    <message>
        <source>From page</source>
        <translation>De la page</translation>
    </message>
    <message>
        <source>From page:</source>
        <translation>De la page :</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>Pa&amp;ges :</translation>
    </message>
    <message>
        <source>Sheets:</source>
        <translation>Feuilles :</translation>
    </message>
    <message>
        <source>New keys</source>
        <translation>Nouvelles touches</translation>
    </message>
    <message>
        <source>&amp;Remove Keys</source>
        <translation>&amp;Retirer les touches</translation>
    </message>
    <message>
        <source>&amp;Default Keys</source>
        <translation>Touches par &amp;défaut</translation>
    </message>
    <message>
        <source>All De&amp;faults</source>
        <translation>Tout par dé&amp;faut</translation>
    </message>
    <message>
        <source>Keys of “%1”:</source>
        <translation>Touches de « %1 » :</translation>
    </message>
    <message>
        <source>Choose a command, and then press the keys that it shall have.</source>
        <translation>Choisissez une commande, puis appuyez sur les touches qu’elle doit avoir.</translation>
    </message>
    <message>
        <source>“%1” is for typing and for moving the picture. Take it together with Ctrl or Alt, or take a function key.</source>
        <translation>« %1 » sert à la saisie et au déplacement de l’image. Ajoutez Ctrl ou Alt, ou choisissez une touche de fonction.</translation>
    </message>
    <message>
        <source>“%1” cannot be written, and nothing was changed.</source>
        <translation>Impossible d’écrire « %1 » ; rien n’a été modifié.</translation>
    </message>
    <message>
        <source>“%1” belongs to “%2” already, and nothing was changed.</source>
        <translation>« %1 » appartient déjà à « %2 » ; rien n’a été modifié.</translation>
    </message>
    <message>
        <source>“%1” opens the menu “%2”, and nothing was changed.</source>
        <translation>« %1 » ouvre le menu « %2 » ; rien n’a été modifié.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Facts about the picture</source>
        <translation>Informations sur l’image</translation>
    </message>
    <message>
        <source>&amp;About Norvex</source>
        <translation>À &amp;propos de Norvex</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Taille &amp;réelle</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>&amp;Désélectionner</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>&amp;Rechercher…</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajuster</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Angle of rotation</source>
        <translation>Angle de rotation</translation>
    </message>
    <message>
        <source>Angle of rotation in degrees, minutes and seconds</source>
        <translation>Angle de rotation en degrés, minutes et secondes</translation>
    </message>
    <message>
        <source>AngleOfRotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Background colour</source>
        <translation>Couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Bounds</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>ColorSpaceName:</source>
        <translation>Espace de couleurs :</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copyright:</source>
        <translation>Copyright :</translation>
    </message>
    <message>
        <source>CreationDate:</source>
        <translation>Créé le :</translation>
    </message>
    <message>
        <source>Creator:</source>
        <translation>Créateur :</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Rien n’est sélectionné.</translation>
    </message>
    <message>
        <source>Encoding:</source>
        <translation>Encodage :</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Fin de la sélection</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>P&amp;lein écran</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>For:</source>
        <translation>Pour :</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Kind of preview</source>
        <translation>Type d’aperçu</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Picture rectangle</source>
        <translation>Rectangle de l’image</translation>
    </message>
    <message>
        <source>Picture to be written</source>
        <translation>Image à écrire</translation>
    </message>
    <message>
        <source>Picture with zoom and scroll bars</source>
        <translation>Image avec zoom et barres de défilement</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Reset Rotatio&amp;n</source>
        <translation>Réi&amp;nitialiser la rotation</translation>
    </message>
    <message>
        <source>Rotate &amp;Left</source>
        <translation>Tourner à &amp;gauche</translation>
    </message>
    <message>
        <source>Rotate &amp;Right</source>
        <translation>Tourner à &amp;droite</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>SaveTo</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source text</source>
        <translation>Texte source</translation>
    </message>
    <message>
        <source>Start of the selection</source>
        <translation>Début de la sélection</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Z&amp;oom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Zoom arrière</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Copy Whole Picture</source>
        <translation>&amp;Copier toute l’image</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le sui&amp;vant</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rechercher le précéde&amp;nt</translation>
    </message>
    <message>
        <source>&amp;Touch Bar</source>
        <translation>&amp;Touch Bar</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>Raccourcis &amp;clavier</translation>
    </message>
    <message>
        <source>What was noticed</source>
        <translation>Observations</translation>
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
        <translation>Polices :</translation>
    </message>
    <message>
        <source>Colors used:</source>
        <translation>Couleurs utilisées :</translation>
    </message>
    <message>
        <source>Encoding of the source</source>
        <translation>Encodage du texte source</translation>
    </message>
    <message>
        <source>About the encoding</source>
        <translation>À propos de l’encodage</translation>
    </message>
    <message>
        <source>What the source seems to say</source>
        <translation>Ce que le texte source semble dire</translation>
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
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>Le fichier dépasse %1 Mio.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>C’est un dossier.</translation>
    </message>
    <message>
        <source>it is a pipe, not an ordinary file</source>
        <translation>C’est un tube, et non un fichier ordinaire.</translation>
    </message>
    <message>
        <source>it is a socket, not an ordinary file</source>
        <translation>C’est un socket, et non un fichier ordinaire.</translation>
    </message>
    <message>
        <source>it is a device, not an ordinary file</source>
        <translation>C’est un périphérique, et non un fichier ordinaire.</translation>
    </message>
    <message>
        <source>it is being changed by another program</source>
        <translation>Un autre programme est en train de modifier le fichier.</translation>
    </message>
    <message>
        <source>only local files can be opened</source>
        <translation>Seuls les fichiers locaux peuvent être ouverts.</translation>
    </message>
    <message>
        <source>this type of document cannot be shown</source>
        <translation>Ce type de document ne peut pas être affiché.</translation>
    </message>
    <message>
        <source>this is not an EPS, Illustrator, PDF or SVG picture</source>
        <translation>Ce n’est pas une image EPS, Illustrator, PDF ou SVG.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript</source>
        <translation>Ce n’est pas du PostScript encapsulé.</translation>
    </message>
    <message>
        <source>the PostScript header states no usable bounding box</source>
        <translation>L’en-tête PostScript n’indique pas de cadre de délimitation utilisable.</translation>
    </message>
    <message>
        <source>the PostScript has no usable bounding box</source>
        <translation>Le PostScript n’a pas de cadre de délimitation utilisable.</translation>
    </message>
    <message>
        <source>the file holds no PostScript</source>
        <translation>Le fichier ne contient pas de PostScript.</translation>
    </message>
    <message>
        <source>the picture has no area to be drawn</source>
        <translation>L’image n’a pas de surface à dessiner.</translation>
    </message>
    <message>
        <source>the SVG document has no area</source>
        <translation>Le document SVG n’a pas de surface.</translation>
    </message>
    <message>
        <source>the picture is empty: its width or height is zero</source>
        <translation>L’image est vide : sa largeur ou sa hauteur est nulle.</translation>
    </message>
    <message>
        <source>the file is cut off: %1 of the %2 bytes of %3 are missing</source>
        <translation>Le fichier est tronqué : il manque %1 octets sur %2 (%3).</translation>
    </message>
    <message>
        <source>the file seems cut off: its PostScript stops before its end</source>
        <translation>Le fichier semble tronqué : son PostScript s’arrête avant la fin.</translation>
    </message>
    <message>
        <source>the file is damaged; it was repaired as far as possible</source>
        <translation>Le fichier est endommagé ; il a été réparé autant que possible.</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of %1 can be read</source>
        <translation>Le fichier est endommagé ; rien n’est lisible (%1).</translation>
    </message>
    <message>
        <source>the file is damaged; nothing of page %1 can be read</source>
        <translation>Le fichier est endommagé ; rien de la page %1 ne peut être lu.</translation>
    </message>
    <message>
        <source>the document is damaged and cannot be read as PDF</source>
        <translation>Le document est endommagé et ne peut pas être lu comme PDF.</translation>
    </message>
    <message>
        <source>the document is not a readable PDF</source>
        <translation>Le document n’est pas un PDF lisible.</translation>
    </message>
    <message>
        <source>the document is protected with a password</source>
        <translation>Le document est protégé par un mot de passe.</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>Le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>the document uses an encryption that is not supported</source>
        <translation>Le document utilise un chiffrement qui n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>Le document n’a pas de pages.</translation>
    </message>
    <message>
        <source>the document has more than %1 pages</source>
        <translation>Le document a plus de %1 pages.</translation>
    </message>
    <message>
        <source>there is no page %1; the document has %2</source>
        <translation>Il n’y a pas de page %1 ; le document en a %2.</translation>
    </message>
    <message>
        <source>there is no page %1, the document has %2</source>
        <translation>Il n’y a pas de page %1 ; le document en a %2.</translation>
    </message>
    <message>
        <source>page %1 is too far behind</source>
        <translation>La page %1 est trop éloignée dans le document.</translation>
    </message>
    <message>
        <source>page %1 has no area</source>
        <translation>La page %1 n’a pas de surface.</translation>
    </message>
    <message>
        <source>page %1 cannot be read</source>
        <translation>La page %1 ne peut pas être lue.</translation>
    </message>
    <message>
        <source>this Illustrator file was saved without PDF content, so it shows a notice instead of the artwork</source>
        <translation>Ce fichier Illustrator a été enregistré sans contenu PDF ; il affiche donc un avis à la place du dessin.</translation>
    </message>
    <message>
        <source>the document is protected by encryption, and what is made of it is not</source>
        <translation>Le document est protégé par chiffrement ; ce qui en est tiré ne l’est pas.</translation>
    </message>
    <message>
        <source>scripts of the document were left out</source>
        <translation>Les scripts du document ont été omis.</translation>
    </message>
    <message>
        <source>the PostScript program stops with an error</source>
        <translation>Le programme PostScript s’arrête sur une erreur.</translation>
    </message>
    <message>
        <source>the PostScript program tries to use a file, which no picture may</source>
        <translation>Le programme PostScript tente d’utiliser un fichier, ce qu’aucune image n’a le droit de faire.</translation>
    </message>
    <message>
        <source>the PostScript draws no page</source>
        <translation>Le PostScript ne dessine aucune page.</translation>
    </message>
    <message>
        <source>the PostScript did not end within %1 seconds</source>
        <translation>Le PostScript ne s’est pas terminé en %1 secondes.</translation>
    </message>
    <message>
        <source>the PostScript needs more memory than it was granted</source>
        <translation>Le PostScript demande plus de mémoire qu’il ne lui en est accordé.</translation>
    </message>
    <message>
        <source>the PostScript used up the time or memory that it was granted</source>
        <translation>Le PostScript a épuisé le temps ou la mémoire qui lui sont accordés.</translation>
    </message>
    <message>
        <source>what follows the picture in the file was left out</source>
        <translation>Ce qui suit l’image dans le fichier a été omis.</translation>
    </message>
    <message>
        <source>there is no interpreter of PostScript</source>
        <translation>Il n’y a pas d’interpréteur PostScript.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript has ended</source>
        <translation>L’interpréteur PostScript s’est arrêté.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript cannot be reached</source>
        <translation>L’interpréteur PostScript est injoignable.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) is not installed</source>
        <translation>Ghostscript (gs) n’est pas installé.</translation>
    </message>
    <message>
        <source>Ghostscript failed on the PostScript</source>
        <translation>Ghostscript a échoué sur ce PostScript.</translation>
    </message>
    <message>
        <source>the document is empty</source>
        <translation>Le document est vide.</translation>
    </message>
    <message>
        <source>the document is not XML</source>
        <translation>Le document n’est pas du XML.</translation>
    </message>
    <message>
        <source>the document is XML but not SVG</source>
        <translation>Le document est du XML, mais pas du SVG.</translation>
    </message>
    <message>
        <source>the document is not well-formed XML</source>
        <translation>Le document n’est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>the compressed data is damaged</source>
        <translation>Les données compressées sont endommagées.</translation>
    </message>
    <message>
        <source>the compressed data is cut off</source>
        <translation>Les données compressées sont tronquées.</translation>
    </message>
    <message>
        <source>the compressed data grows to more than %1 times its size</source>
        <translation>Les données compressées occupent plus de %1 fois leur taille une fois décompressées.</translation>
    </message>
    <message>
        <source>the compressed data holds more than %1 MiB</source>
        <translation>Les données compressées contiennent plus de %1 Mio.</translation>
    </message>
    <message>
        <source>the document has more than %1 elements</source>
        <translation>Le document a plus de %1 éléments.</translation>
    </message>
    <message>
        <source>the elements of the document nest more than %1 deep</source>
        <translation>Les éléments du document sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>the references of the document nest more than %1 deep</source>
        <translation>Les références du document sont imbriquées sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts nest more than %1 deep</source>
        <translation>Les glyphes des polices du document sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>the glyphs of the document's fonts show more than %1 others</source>
        <translation>Les glyphes des polices du document en affichent plus de %1 autres.</translation>
    </message>
    <message>
        <source>the document uses entities more than %1 times</source>
        <translation>Le document utilise des entités plus de %1 fois.</translation>
    </message>
    <message>
        <source>the entities of the document expand to more than %1 MiB</source>
        <translation>Les entités du document dépassent %1 Mio une fois développées.</translation>
    </message>
    <message>
        <source>the entities of the document refer to one another without end</source>
        <translation>Les entités du document se renvoient l’une à l’autre sans fin.</translation>
    </message>
    <message>
        <source>the picture is wider or higher than %1 points</source>
        <translation>L’image est plus large ou plus haute que %1 points.</translation>
    </message>
    <message>
        <source>the picture cannot be read</source>
        <translation>L’image ne peut pas être lue.</translation>
    </message>
    <message>
        <source>the picture holds something that cannot be drawn</source>
        <translation>L’image contient quelque chose qui ne peut pas être dessiné.</translation>
    </message>
    <message>
        <source>the encoding %1 is not known</source>
        <translation>L’encodage %1 n’est pas connu.</translation>
    </message>
    <message>
        <source>the bytes are not text in the encoding %1</source>
        <translation>Les octets ne sont pas du texte dans l’encodage %1.</translation>
    </message>
    <message>
        <source>the document refers to other files, which are never loaded (references: %1)</source>
        <translation>Le document renvoie à d’autres fichiers, qui ne sont jamais chargés (références : %1).</translation>
    </message>
    <message>
        <source>the document has scripts, which are never run</source>
        <translation>Le document contient des scripts, qui ne sont jamais exécutés.</translation>
    </message>
    <message>
        <source>the document is animated and is shown as it stands at rest</source>
        <translation>Le document est animé ; il est affiché au repos.</translation>
    </message>
    <message>
        <source>the font %1 is missing, another stands in for it</source>
        <translation>La police %1 manque ; une autre la remplace.</translation>
    </message>
    <message>
        <source>the font %1 is missing, %2 stands in for it</source>
        <translation>La police %1 manque ; %2 la remplace.</translation>
    </message>
    <message>
        <source>the picture was not ready within %1 seconds</source>
        <translation>L’image n’était pas prête au bout de %1 secondes.</translation>
    </message>
    <message>
        <source>the picture was not ready within the time that it is allowed</source>
        <translation>L’image n’était pas prête dans le temps qui lui est accordé.</translation>
    </message>
    <message>
        <source>the picture needs more memory than it is allowed</source>
        <translation>L’image demande plus de mémoire qu’il ne lui en est accordé.</translation>
    </message>
    <message>
        <source>the picture needs more processor time than it is allowed</source>
        <translation>L’image demande plus de temps de calcul qu’il ne lui en est accordé.</translation>
    </message>
    <message>
        <source>the picture needs more temporary files than it is allowed</source>
        <translation>L’image demande plus de fichiers temporaires qu’il ne lui en est accordé.</translation>
    </message>
    <message>
        <source>the picture nests deeper than can be drawn</source>
        <translation>L’image est imbriquée plus profondément qu’on ne peut la dessiner.</translation>
    </message>
    <message>
        <source>the picture is larger than the memory that it was granted</source>
        <translation>L’image est plus grande que la mémoire qui lui est accordée.</translation>
    </message>
    <message>
        <source>the picture would have more pixels than it is allowed</source>
        <translation>L’image aurait plus de pixels qu’il n’est permis.</translation>
    </message>
    <message>
        <source>the image would have a side of more than %1 pixels</source>
        <translation>Un côté de l’image dépasserait %1 pixels.</translation>
    </message>
    <message>
        <source>the image would have more than %1 megapixels</source>
        <translation>L’image dépasserait %1 mégapixels.</translation>
    </message>
    <message>
        <source>there is not enough memory for the picture</source>
        <translation>Il n’y a pas assez de mémoire pour l’image.</translation>
    </message>
    <message>
        <source>there is not enough memory for the document</source>
        <translation>Il n’y a pas assez de mémoire pour le document.</translation>
    </message>
    <message>
        <source>there is not enough memory to draw the picture</source>
        <translation>Il n’y a pas assez de mémoire pour dessiner l’image.</translation>
    </message>
    <message>
        <source>there is not enough memory to read the document</source>
        <translation>Il n’y a pas assez de mémoire pour lire le document.</translation>
    </message>
    <message>
        <source>the picture is larger than files may become here</source>
        <translation>L’image dépasse la taille que les fichiers peuvent atteindre ici.</translation>
    </message>
    <message>
        <source>too many files are open for another picture</source>
        <translation>Trop de fichiers sont ouverts pour une image de plus.</translation>
    </message>
    <message>
        <source>the picture process ended without an answer</source>
        <translation>Le processus d’image s’est terminé sans répondre.</translation>
    </message>
    <message>
        <source>the picture process did not answer in time</source>
        <translation>Le processus d’image n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>the picture process was killed by the system, which has probably run out of memory</source>
        <translation>Le système a mis fin au processus d’image, sans doute faute de mémoire.</translation>
    </message>
    <message>
        <source>the picture process gave an answer that cannot be true</source>
        <translation>Le processus d’image a donné une réponse qui ne peut pas être vraie.</translation>
    </message>
    <message>
        <source>no process for the picture could be started</source>
        <translation>Aucun processus n’a pu être lancé pour l’image.</translation>
    </message>
    <message>
        <source>the program that reads pictures could not be started</source>
        <translation>Le programme qui lit les images n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>the program that reads pictures has ended</source>
        <translation>Le programme qui lit les images s’est arrêté.</translation>
    </message>
    <message>
        <source>the program that reads pictures has not answered yet</source>
        <translation>Le programme qui lit les images n’a pas encore répondu.</translation>
    </message>
    <message>
        <source>the picture process could not be confined: this system offers neither Landlock nor user namespaces with seccomp filters</source>
        <translation>Le processus d’image n’a pas pu être confiné : ce système n’offre ni Landlock, ni espaces de noms d’utilisateur avec filtres seccomp.</translation>
    </message>
    <message>
        <source>the drawing was stopped</source>
        <translation>Le dessin a été arrêté.</translation>
    </message>
    <message>
        <source>the picture could not be processed</source>
        <translation>L’image n’a pas pu être traitée.</translation>
    </message>
    <message>
        <source>the picture cannot be drawn at this size</source>
        <translation>L’image ne peut pas être dessinée à cette taille.</translation>
    </message>
    <message>
        <source>the file exists already</source>
        <translation>Le fichier existe déjà.</translation>
    </message>
    <message>
        <source>the folder to write to does not exist</source>
        <translation>Le dossier de destination n’existe pas.</translation>
    </message>
    <message>
        <source>there is a folder of that name</source>
        <translation>Un dossier porte ce nom.</translation>
    </message>
    <message>
        <source>there is no space left to write to</source>
        <translation>Il n’y a plus de place pour écrire.</translation>
    </message>
    <message>
        <source>writing there is not permitted</source>
        <translation>Il n’est pas permis d’y écrire.</translation>
    </message>
    <message>
        <source>the file could not be written (%1)</source>
        <translation>Le fichier n’a pas pu être écrit (%1).</translation>
    </message>
    <message>
        <source>it is not an ordinary file</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>Le fichier est en lecture seule.</translation>
    </message>
    <message>
        <source>the rectangle is empty or out of range</source>
        <translation>Le rectangle est vide ou hors limites.</translation>
    </message>
    <message>
        <source>no profile of a press is installed (%1)</source>
        <translation>Aucun profil de presse n’est installé (%1).</translation>
    </message>
    <message>
        <source>the page cannot be written as PostScript</source>
        <translation>La page ne peut pas être écrite en PostScript.</translation>
    </message>
    <message>
        <source>the page cannot be written as SVG</source>
        <translation>La page ne peut pas être écrite en SVG.</translation>
    </message>
    <message>
        <source>the picture cannot be written as PDF</source>
        <translation>L’image ne peut pas être écrite en PDF.</translation>
    </message>
    <message>
        <source>the page is too large or too deeply nested to become SVG</source>
        <translation>La page est trop grande ou trop imbriquée pour devenir du SVG.</translation>
    </message>
    <message>
        <source>only EPS files can be repaired</source>
        <translation>Seuls les fichiers EPS peuvent être réparés.</translation>
    </message>
    <message>
        <source>an SVG picture has no inks: its colours are those of a screen</source>
        <translation>Une image SVG n’a pas d’encres : ses couleurs sont celles d’un écran.</translation>
    </message>
    <message>
        <source>at %1 dpi a plate has %2 million pixels, and at most %3 million can be handled</source>
        <translation>À %1 ppp, une plaque a %2 millions de pixels ; %3 millions au plus sont possibles.</translation>
    </message>
    <message>
        <source>the print service cannot be reached</source>
        <translation>Le service d’impression est injoignable.</translation>
    </message>
    <message>
        <source>the print service does not answer</source>
        <translation>Le service d’impression ne répond pas.</translation>
    </message>
    <message>
        <source>the print service gives no answer that makes sense</source>
        <translation>Le service d’impression ne donne aucune réponse compréhensible.</translation>
    </message>
    <message>
        <source>there is no printer</source>
        <translation>Il n’y a pas d’imprimante.</translation>
    </message>
    <message>
        <source>no printer is the default one</source>
        <translation>Aucune imprimante n’est définie par défaut.</translation>
    </message>
    <message>
        <source>there is no printer named “%1”</source>
        <translation>Il n’y a pas d’imprimante « %1 ».</translation>
    </message>
    <message>
        <source>the printer “%1” takes no jobs</source>
        <translation>L’imprimante « %1 » n’accepte pas de travaux.</translation>
    </message>
    <message>
        <source>the printer “%1” is not open to this user</source>
        <translation>L’imprimante « %1 » n’est pas ouverte à cet utilisateur.</translation>
    </message>
    <message>
        <source>the printer “%1” wants a user name and a password, which are not asked for here</source>
        <translation>L’imprimante « %1 » exige un nom d’utilisateur et un mot de passe, qui ne peuvent pas être saisis ici.</translation>
    </message>
    <message>
        <source>the printer “%1” did not take the job: %2</source>
        <translation>L’imprimante « %1 » n’a pas accepté le travail : %2.</translation>
    </message>
    <message>
        <source>the document has %1 pages, and only the first %2 of them can be printed</source>
        <translation>Le document a %1 pages, et seules les %2 premières peuvent être imprimées.</translation>
    </message>
    <message>
        <source>there are no such pages: the document has %1</source>
        <translation>Ces pages n’existent pas : le document en a %1.</translation>
    </message>
    <message>
        <source>there are no such pages: the picture takes %1</source>
        <translation>Ces pages n’existent pas : l’image en occupe %1.</translation>
    </message>
    <message>
        <source>the pages would take more than %1 sheets of paper</source>
        <translation>Les pages prendraient plus de %1 feuilles.</translation>
    </message>
    <message>
        <source>the picture would take more than %1 sheets of paper</source>
        <translation>L’image prendrait plus de %1 feuilles.</translation>
    </message>
    <message>
        <source>the margins leave no room on the paper</source>
        <translation>Les marges ne laissent pas de place sur le papier.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>L’accès est refusé.</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur de lecture ou d’écriture du périphérique.</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>its PostScript</source>
        <translation>son PostScript</translation>
    </message>
    <message>
        <source>its preview</source>
        <translation>son aperçu</translation>
    </message>
    <message>
        <source>its plates</source>
        <translation>ses plaques</translation>
    </message>
    <message>
        <source>its page</source>
        <translation>sa page</translation>
    </message>
    <message>
        <source>its pages</source>
        <translation>ses pages</translation>
    </message>
    <message>
        <source>no reason is given</source>
        <translation>sans motif indiqué</translation>
    </message>
    <message>
        <source>actions that start programs or open other files were left out</source>
        <translation>Les actions qui lancent des programmes ou ouvrent d’autres fichiers ont été omises.</translation>
    </message>
    <message>
        <source>what the document does when it is opened was left out</source>
        <translation>Ce que le document fait à l’ouverture a été omis.</translation>
    </message>
    <message>
        <source>references to files beside the document were left out</source>
        <translation>Les renvois à des fichiers extérieurs au document ont été omis.</translation>
    </message>
    <message>
        <source>PostScript programs that the document holds were left out</source>
        <translation>Les programmes PostScript contenus dans le document ont été omis.</translation>
    </message>
    <message>
        <source>glyphs that show themselves were left out</source>
        <translation>Des glyphes qui s’affichent eux-mêmes ont été omis.</translation>
    </message>
    <message>
        <source>glyphs that show too many others were left out</source>
        <translation>Des glyphes qui en affichent trop d’autres ont été omis.</translation>
    </message>
    <message>
        <source>a font cannot be taken over; another stands in for it</source>
        <translation>Une police ne peut pas être reprise ; une autre la remplace.</translation>
    </message>
    <message>
        <source>the font %1 cannot be taken over; another stands in for it</source>
        <translation>La police %1 ne peut pas être reprise ; une autre la remplace.</translation>
    </message>
    <message>
        <source>the source has no PostScript, so the file holds a preview and nothing else</source>
        <translation>La source n’a pas de PostScript ; le fichier ne contient qu’un aperçu.</translation>
    </message>
    <message>
        <source>the picture gives no PostScript, so the file holds a preview and nothing else</source>
        <translation>L’image ne donne pas de PostScript ; le fichier ne contient qu’un aperçu.</translation>
    </message>
    <message>
        <source>the PDF has no subject, because the document has a description but no title</source>
        <translation>Le PDF n’a pas de sujet, car le document a une description mais pas de titre.</translation>
    </message>
    <message>
        <source>the preview could not be written as TIFF</source>
        <translation>L’aperçu n’a pas pu être écrit en TIFF.</translation>
    </message>
    <message>
        <source>the result could not be opened again: %1</source>
        <translation>Le résultat n’a pas pu être rouvert. %1.</translation>
    </message>
    <message>
        <source>an image with more pixels than are granted was left out</source>
        <translation>Une image de plus de pixels qu’il n’est permis a été omise.</translation>
    </message>
    <message>
        <source>letters of more fonts or shapes than are granted were left out</source>
        <translation>Des lettres de plus de polices ou de formes qu’il n’est permis ont été omises.</translation>
    </message>
    <message>
        <source>a group that knocks out or blends with what lies below it is put together by itself, as SVG has it</source>
        <translation>Un groupe qui défonce ou se mélange à ce qui se trouve dessous est composé à part, comme le prévoit SVG.</translation>
    </message>
    <message>
        <source>some text stays outlines: it is a line or a clip, or its font may not or cannot be embedded</source>
        <translation>Une partie du texte reste en tracés : il sert de trait ou de masque, ou sa police ne peut ou ne doit pas être incorporée.</translation>
    </message>
    <message>
        <source>of some characters the document does not tell the meaning: they are shown, and no search finds them</source>
        <translation>Le document n’indique pas ce que signifient certains caractères : ils sont affichés, mais aucune recherche ne les trouve.</translation>
    </message>
    <message>
        <source>what is drawn through a filter (elements: %1) is held as an image</source>
        <translation>Ce qui est dessiné à travers un filtre (éléments : %1) est conservé en image.</translation>
    </message>
    <message>
        <source>masks (elements: %1) are held as images, what they mask is not</source>
        <translation>Les masques (éléments : %1) sont conservés en images, pas ce qu’ils masquent.</translation>
    </message>
    <message>
        <source>the text is in %1 and is handed on as UTF-8</source>
        <translation>Le texte est en %1 et il est transmis en UTF-8.</translation>
    </message>
    <message>
        <source>the document's width or height is not a length and is passed over</source>
        <translation>La largeur ou la hauteur du document n’est pas une longueur et est ignorée.</translation>
    </message>
    <message>
        <source>the document's view box is not readable and is passed over</source>
        <translation>La viewBox du document n’est pas lisible et est ignorée.</translation>
    </message>
    <message>
        <source>it draws nothing and states no bounding box</source>
        <translation>Il ne dessine rien et n’indique pas de cadre de délimitation.</translation>
    </message>
    <message>
        <source>it cannot be mended: %1</source>
        <translation>Il ne peut pas être réparé. %1.</translation>
    </message>
    <message>
        <source>the program was taken out of %1</source>
        <translation>Le programme a été extrait de %1.</translation>
    </message>
    <message>
        <source>the program was taken out of its binary file</source>
        <translation>Le programme a été extrait de son fichier binaire.</translation>
    </message>
    <message>
        <source>the preview was left out</source>
        <translation>L’aperçu a été omis.</translation>
    </message>
    <message>
        <source>the Windows metafile was left out</source>
        <translation>Le métafichier Windows a été omis.</translation>
    </message>
    <message>
        <source>a preview of %1 by %2 pixels was made</source>
        <translation>Un aperçu de %1 × %2 pixels a été créé.</translation>
    </message>
    <message>
        <source>the first line is %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>La première ligne est %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>%%EndComments was put in</source>
        <translation>%%EndComments a été inséré.</translation>
    </message>
    <message>
        <source>a second %%EndComments was left out</source>
        <translation>Un second %%EndComments a été omis.</translation>
    </message>
    <message>
        <source>showpage was put in</source>
        <translation>showpage a été inséré.</translation>
    </message>
    <message>
        <source>%%EOF was put in</source>
        <translation>%%EOF a été inséré.</translation>
    </message>
    <message>
        <source>what stood behind %%EOF was left out</source>
        <translation>Ce qui suivait %%EOF a été omis.</translation>
    </message>
    <message>
        <source>what stood before the first line was left out</source>
        <translation>Ce qui précédait la première ligne a été omis.</translation>
    </message>
    <message>
        <source>the box at the end of the file stands in its header</source>
        <translation>Le cadre de la fin du fichier est dans son en-tête.</translation>
    </message>
    <message>
        <source>the bounding box is %1 (%2)</source>
        <translation>Le cadre de délimitation est %1 (%2).</translation>
    </message>
    <message>
        <source>%1 was left out, because it stood out of order</source>
        <translation>%1 a été omis, car il n’était pas à sa place.</translation>
    </message>
    <message>
        <source>the document is larger than %1 MiB</source>
        <translation>Le document dépasse %1 Mio.</translation>
    </message>
    <message>
        <source>the compressed data is larger than %1 MiB</source>
        <translation>Les données compressées dépassent %1 Mio.</translation>
    </message>
    <message>
        <source>there is not enough memory to inflate the data</source>
        <translation>Il n’y a pas assez de mémoire pour décompresser les données.</translation>
    </message>
    <message>
        <source>the document has a filter with a matrix of more than %1 numbers</source>
        <translation>Le document a un filtre dont la matrice dépasse %1 nombres.</translation>
    </message>
    <message>
        <source>the selectors of the document's style sheets nest more than %1 deep</source>
        <translation>Les sélecteurs des feuilles de style du document sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>the document has text of more than %1 units in size</source>
        <translation>Le document contient du texte de plus de %1 unités de corps.</translation>
    </message>
    <message>
        <source>the plates of the page have more pixels than can be handled; a lower resolution helps</source>
        <translation>Les plaques de la page ont trop de pixels ; une résolution plus basse aide.</translation>
    </message>
    <message>
        <source>Ghostscript did not separate the page</source>
        <translation>Ghostscript n’a pas séparé la page.</translation>
    </message>
    <message>
        <source>Ghostscript (gs) cannot be started</source>
        <translation>Ghostscript (gs) ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>the interpreter of PostScript could not be confined</source>
        <translation>L’interpréteur PostScript n’a pas pu être confiné.</translation>
    </message>
    <message>
        <source>there is no %%BoundingBox</source>
        <translation>Il n’y a pas de %%BoundingBox.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1, with a Macintosh picture (PICT) of %2 × %3 points as its preview</source>
        <translation>Le fichier est enveloppé au format %1, avec une image Macintosh (PICT) de %2 × %3 points comme aperçu.</translation>
    </message>
    <message>
        <source>there is no preview</source>
        <translation>Il n’y a pas d’aperçu.</translation>
    </message>
    <message>
        <source>the file does not begin with %!PS-Adobe</source>
        <translation>Le fichier ne commence pas par %!PS-Adobe.</translation>
    </message>
    <message>
        <source>showpage is missing</source>
        <translation>showpage manque.</translation>
    </message>
    <message>
        <source>the font %1 is a Type 3 font</source>
        <translation>La police %1 est une police Type 3.</translation>
    </message>
    <message>
        <source>the font %1 is not embedded</source>
        <translation>La police %1 n’est pas incorporée.</translation>
    </message>
    <message>
        <source>the font %1 is embedded as a whole</source>
        <translation>La police %1 est incorporée en entier.</translation>
    </message>
    <message>
        <source>there are RGB colours</source>
        <translation>Il y a des couleurs RVB.</translation>
    </message>
    <message>
        <source>white overprints, and will vanish</source>
        <translation>Du blanc est en surimpression et disparaîtra.</translation>
    </message>
    <message>
        <source>small black text does not overprint</source>
        <translation>Le petit texte noir n’est pas en surimpression.</translation>
    </message>
    <message>
        <source>the document is encrypted</source>
        <translation>Le document est chiffré.</translation>
    </message>
    <message>
        <source>it has scripts or animations, which are not run</source>
        <translation>Il a des scripts ou des animations, qui ne sont pas exécutés.</translation>
    </message>
    <message>
        <source>its width or height is absent, or has no unit</source>
        <translation>Sa largeur ou sa hauteur manque, ou n’a pas d’unité.</translation>
    </message>
    <message>
        <source>there is transparency</source>
        <translation>Il y a de la transparence.</translation>
    </message>
    <message>
        <source>a part of the page was not looked at</source>
        <translation>Une partie de la page n’a pas été examinée.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1" instead of four numbers</source>
        <translation>%%BoundingBox contient « %1 » au lieu de quatre nombres.</translation>
    </message>
    <message>
        <source>%%BoundingBox holds "%1", which are not all whole numbers</source>
        <translation>%%BoundingBox contient « %1 », qui ne sont pas tous des nombres entiers.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 does not enclose %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 n’englobe pas %%HiResBoundingBox %2.</translation>
    </message>
    <message>
        <source>%%BoundingBox %1 is far larger than %%HiResBoundingBox %2</source>
        <translation>%%BoundingBox %1 est bien plus grand que %%HiResBoundingBox %2.</translation>
    </message>
    <message>
        <source>without a name</source>
        <translation>sans nom</translation>
    </message>
    <message>
        <source>%%BoundingBox is promised for the end and does not come</source>
        <translation>%%BoundingBox est annoncé pour la fin et n’y est pas.</translation>
    </message>
    <message>
        <source>the bounding box %1 has no area</source>
        <translation>Le cadre de délimitation %1 n’a pas de surface.</translation>
    </message>
    <message>
        <source>nothing but white is drawn inside the bounding box</source>
        <translation>Seul du blanc est dessiné dans le cadre de délimitation.</translation>
    </message>
    <message>
        <source>the bounding box %1 cuts the ink off, which reaches %2 pt beyond it: %3</source>
        <translation>Le cadre de délimitation %1 coupe le dessin, qui le dépasse de %2 pt : %3.</translation>
    </message>
    <message>
        <source>the bounding box %1 is more than twice as large as the ink: %2</source>
        <translation>Le cadre de délimitation %1 est plus de deux fois plus grand que le dessin : %2.</translation>
    </message>
    <message>
        <source>the %1 section ends at byte %2, the file at byte %3</source>
        <translation>La section %1 finit à l’octet %2, le fichier à l’octet %3.</translation>
    </message>
    <message>
        <source>the %1 section lies over another part of the file</source>
        <translation>La section %1 recouvre une autre partie du fichier.</translation>
    </message>
    <message>
        <source>bytes before %!PS-Adobe: %1</source>
        <translation>Octets avant %!PS-Adobe : %1.</translation>
    </message>
    <message>
        <source>bytes behind %%EOF: %1</source>
        <translation>Octets après %%EOF : %1.</translation>
    </message>
    <message>
        <source>the file needs fonts that it does not bring: %1</source>
        <translation>Le fichier a besoin de polices qu’il n’apporte pas : %1.</translation>
    </message>
    <message>
        <source>the preview is %1 by %2 pixels large, the bounding box %3 by %4 points</source>
        <translation>L’aperçu mesure %1 × %2 pixels, le cadre de délimitation %3 × %4 points.</translation>
    </message>
    <message>
        <source>the preview shows another picture than the program draws (mean difference %1 %)</source>
        <translation>L’aperçu montre une autre image que celle que dessine le programme (différence moyenne : %1 %).</translation>
    </message>
    <message>
        <source>the first line "%1" does not say %!PS-Adobe-3.0 EPSF-3.0</source>
        <translation>La première ligne « %1 » ne dit pas %!PS-Adobe-3.0 EPSF-3.0.</translation>
    </message>
    <message>
        <source>the first line declares PS-Adobe-%1 and EPSF-%2, which do not exist</source>
        <translation>La première ligne déclare PS-Adobe-%1 et EPSF-%2, qui n’existent pas.</translation>
    </message>
    <message>
        <source>the header has no %%EndComments</source>
        <translation>L’en-tête n’a pas de %%EndComments.</translation>
    </message>
    <message>
        <source>%%EndComments stands behind the first line that is no comment</source>
        <translation>%%EndComments se trouve après la première ligne qui n’est pas un commentaire.</translation>
    </message>
    <message>
        <source>lines of more than 255 bytes: %1, the first is line %2</source>
        <translation>Lignes de plus de 255 octets : %1 ; la première est la ligne %2.</translation>
    </message>
    <message>
        <source>lines end in %1 different ways</source>
        <translation>Les lignes finissent de %1 façons différentes.</translation>
    </message>
    <message>
        <source>a line is %1 pt thin, %2 pt are asked for</source>
        <translation>Un trait n’a que %1 pt d’épaisseur ; %2 pt sont demandés.</translation>
    </message>
    <message>
        <source>a text is %1 pt small, %2 pt are asked for</source>
        <translation>Un texte n’a que %1 pt de corps ; %2 pt sont demandés.</translation>
    </message>
    <message>
        <source>a colour takes %1 % of ink, %2 % are allowed</source>
        <translation>Une couleur demande %1 % d’encre ; %2 % sont permis.</translation>
    </message>
    <message>
        <source>the %1 image of %2 by %3 pixels has %4 dpi, %5 are asked for</source>
        <translation>L’image (%1) de %2 × %3 pixels a %4 ppp ; %5 sont demandés.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>couleur</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>gris</translation>
    </message>
    <message>
        <source>line art</source>
        <translation>au trait</translation>
    </message>
    <message>
        <source>it names the colour space %1, which the profile does not</source>
        <translation>L’espace colorimétrique %1 apparaît, mais le profil ne le nomme pas.</translation>
    </message>
    <message>
        <source>there is the spot ink %1</source>
        <translation>Le ton direct %1 est utilisé.</translation>
    </message>
    <message>
        <source>RGB colours stand beside CMYK colours</source>
        <translation>Des couleurs RVB côtoient des couleurs CMJN.</translation>
    </message>
    <message>
        <source>its permissions forbid %1</source>
        <translation>Ses droits n’autorisent pas : %1.</translation>
    </message>
    <message>
        <source>it claims to keep %1</source>
        <translation>Il déclare respecter %1.</translation>
    </message>
    <message>
        <source>it claims to keep %1 and has no output intent</source>
        <translation>Il déclare respecter %1 et n’a pas d’intention de sortie.</translation>
    </message>
    <message>
        <source>it refers to other files, which are never loaded (references: %1)</source>
        <translation>Il renvoie à d’autres fichiers, qui ne sont jamais chargés (références : %1).</translation>
    </message>
    <message>
        <source>elements drawn through filters become images in print: %1</source>
        <translation>Éléments filtrés qui deviennent des images à l’impression : %1.</translation>
    </message>
    <message>
        <source>something is drawn up to %1 pt outside the page</source>
        <translation>Quelque chose est dessiné jusqu’à %1 pt hors de la page.</translation>
    </message>
    <message>
        <source>only the first %1 pages were looked at</source>
        <translation>Seules les %1 premières pages ont été examinées.</translation>
    </message>
    <message>
        <source>the picture is %1 mm wide, columns are %2 mm</source>
        <translation>L’image mesure %1 mm de large, les colonnes %2 mm.</translation>
    </message>
    <message>
        <source>the file is wrapped as %1</source>
        <translation>Le fichier est enveloppé au format %1.</translation>
    </message>
    <message>
        <source>%1 takes language level %2, and the header declares %3</source>
        <translation>%1 demande le niveau de langage %2, et l’en-tête déclare : %3.</translation>
    </message>
    <message>
        <source>none above 1</source>
        <translation>aucun au-delà de 1</translation>
    </message>
    <message>
        <source>%1 has no place in an EPS file</source>
        <translation>%1 n’a pas sa place dans un fichier EPS.</translation>
    </message>
    <message>
        <source>%1 is declared, and line %2 holds the byte %3</source>
        <translation>%1 est déclaré, et la ligne %2 contient l’octet %3.</translation>
    </message>
    <message>
        <source>%1 stands behind %2</source>
        <translation>%1 se trouve après %2.</translation>
    </message>
    <message>
        <source>%1 ends what did not begin</source>
        <translation>%1 termine ce qui n’a pas commencé.</translation>
    </message>
    <message>
        <source>%1 has no end</source>
        <translation>%1 n’a pas de fin.</translation>
    </message>
    <message>
        <source>the embedded preview is malformed</source>
        <translation>L’aperçu incorporé est mal formé.</translation>
    </message>
    <message>
        <source>the embedded preview is too large</source>
        <translation>L’aperçu incorporé est trop grand.</translation>
    </message>
    <message>
        <source>the embedded preview lies outside of the file</source>
        <translation>L’aperçu incorporé se trouve hors du fichier.</translation>
    </message>
    <message>
        <source>the preview is not a readable TIFF image</source>
        <translation>L’aperçu n’est pas une image TIFF lisible.</translation>
    </message>
    <message>
        <source>the preview has more than %1 megapixels</source>
        <translation>L’aperçu dépasse %1 mégapixels.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile is damaged</source>
        <translation>Le métafichier Windows incorporé est endommagé.</translation>
    </message>
    <message>
        <source>the embedded Windows metafile tells no size</source>
        <translation>Le métafichier Windows incorporé n’indique pas de taille.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is damaged</source>
        <translation>Une image matricielle du métafichier Windows est endommagée.</translation>
    </message>
    <message>
        <source>a bitmap in the Windows metafile is of a kind that is not drawn</source>
        <translation>Une image matricielle du métafichier Windows est d’un type qui n’est pas dessiné.</translation>
    </message>
    <message>
        <source>the part of norvex that this picture needs is missing or damaged: %1</source>
        <translation>La partie de Norvex dont cette image a besoin est absente ou endommagée : %1.</translation>
    </message>
    <message>
        <source>the measures of the picture are larger than can be handled</source>
        <translation>Les dimensions de l’image sont trop grandes pour être traitées.</translation>
    </message>
    <message>
        <source>the picture process cannot be waited for: too many files are open</source>
        <translation>Impossible d’attendre le processus d’image : trop de fichiers sont ouverts.</translation>
    </message>
    <message>
        <source>no connection to a picture process could be made</source>
        <translation>Aucune connexion à un processus d’image n’a pu être établie.</translation>
    </message>
    <message>
        <source>the picture cannot be made in this size or at this place</source>
        <translation>L’image ne peut pas être produite à cette taille ou à cet endroit.</translation>
    </message>
    <message>
        <source>the picture is too large to be drawn without seams</source>
        <translation>l’image est trop grande pour être dessinée sans jointures visibles</translation>
    </message>
    <message>
        <source>there was not enough memory for work in the background</source>
        <translation>il n’y avait pas assez de mémoire pour un travail en arrière-plan</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>Il n’y a pas d’image.</translation>
    </message>
    <message>
        <source>these pixels cannot be converted</source>
        <translation>Ces pixels ne peuvent pas être convertis.</translation>
    </message>
    <message>
        <source>the profile of the press cannot be used</source>
        <translation>Le profil de la presse ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>a section of it is missing</source>
        <translation>Il en manque une section.</translation>
    </message>
    <message>
        <source>it has no end</source>
        <translation>Il n’a pas de fin.</translation>
    </message>
    <message>
        <source>the source has no PostScript</source>
        <translation>La source n’a pas de PostScript.</translation>
    </message>
    <message>
        <source>the source has no comments that a preview could follow</source>
        <translation>La source n’a pas de commentaires après lesquels placer un aperçu.</translation>
    </message>
    <message>
        <source>the document has a description but no title to store with it</source>
        <translation>Le document a une description, mais pas de titre à enregistrer avec elle.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %!</source>
        <translation>Ce n’est pas du PostScript encapsulé : il ne commence pas par %!.</translation>
    </message>
    <message>
        <source>this is not Encapsulated PostScript: it does not begin with %! and states no bounding box</source>
        <translation>Ce n’est pas du PostScript encapsulé : il ne commence pas par %! et n’indique pas de cadre de délimitation.</translation>
    </message>
    <message>
        <source>the document is protected by encryption and does not allow %1; what is made of it is not protected</source>
        <translation>Le document est protégé par chiffrement et n’autorise pas : %1. Ce qui en est tiré n’est pas protégé.</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression</translation>
    </message>
    <message>
        <source>changing</source>
        <translation>modification</translation>
    </message>
    <message>
        <source>copying</source>
        <translation>copie</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 is not understood and was left out</source>
        <translation>L’opérateur Illustrator %1 n’est pas compris et a été omis.</translation>
    </message>
    <message>
        <source>the Illustrator operator %1 was left out where its operands are not understood</source>
        <translation>L’opérateur Illustrator %1 a été omis là où ses opérandes ne sont pas compris.</translation>
    </message>
    <message>
        <source>the pattern %1 is not in the file in a form that is understood and was left out</source>
        <translation>Le motif %1 n’est pas dans le fichier sous une forme comprise et a été omis.</translation>
    </message>
    <message>
        <source>the gradient %1 is not in the file: a plain colour stands for it</source>
        <translation>Le dégradé %1 n’est pas dans le fichier : une couleur unie le remplace.</translation>
    </message>
    <message>
        <source>the placed picture %1 is not in the file</source>
        <translation>L’image placée %1 n’est pas dans le fichier.</translation>
    </message>
    <message>
        <source>a pdfmark whose operands are wrong was left out</source>
        <translation>Un pdfmark aux opérandes incorrects a été omis.</translation>
    </message>
    <message>
        <source>a part of the artwork could not be drawn (%1)</source>
        <translation>Une partie du dessin n’a pas pu être dessinée (%1).</translation>
    </message>
    <message>
        <source>the page has errors, and something may be missing on its plates</source>
        <translation>La page a des erreurs ; quelque chose manque peut-être sur ses plaques.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3.</translation>
    </message>
    <message>
        <source>there is no %1, only [limits] and [severities]</source>
        <translation>Il n’y a pas de %1, seulement [limits] et [severities].</translation>
    </message>
    <message>
        <source>%1 is a number from 0</source>
        <translation>%1 est un nombre à partir de 0.</translation>
    </message>
    <message>
        <source>rgb is true or false</source>
        <translation>rgb vaut true ou false.</translation>
    </message>
    <message>
        <source>colour-spaces is a list of names</source>
        <translation>colour-spaces est une liste de noms.</translation>
    </message>
    <message>
        <source>columns-mm is a list of numbers</source>
        <translation>columns-mm est une liste de nombres.</translation>
    </message>
    <message>
        <source>there is no limit %1</source>
        <translation>Il n’y a pas de limite %1.</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>Il n’y a pas de règle %1.</translation>
    </message>
    <message>
        <source>%1 is one of: error, warning, note, off</source>
        <translation>%1 est l’un de : error, warning, note, off.</translation>
    </message>
    <message>
        <source>this is neither a [table] nor a name with = and a value</source>
        <translation>Ce n’est ni une [table], ni un nom suivi de = et d’une valeur.</translation>
    </message>
    <message>
        <source>%1 is no ordinary file, as a profile has to be</source>
        <translation>%1 n’est pas un fichier ordinaire, ce qu’un profil doit être.</translation>
    </message>
    <message>
        <source>there is no profile %1, and no file of that name; profiles are: %2</source>
        <translation>Il n’y a ni profil %1, ni fichier de ce nom ; les profils sont : %2.</translation>
    </message>
    <message>
        <source>%1 is too large for a profile</source>
        <translation>%1 est trop grand pour un profil.</translation>
    </message>
    <message>
        <source>Landlock: on, version %1</source>
        <translation>Landlock : actif, version %1.</translation>
    </message>
    <message>
        <source>Landlock: missing</source>
        <translation>Landlock : absent.</translation>
    </message>
    <message>
        <source>No rules of the kernel about files</source>
        <translation>Aucune règle du noyau sur les fichiers.</translation>
    </message>
    <message>
        <source>Nothing but what engines need can be read, nothing but scratch files written</source>
        <translation>Seul ce dont les moteurs ont besoin peut être lu, et seuls des fichiers temporaires écrits.</translation>
    </message>
    <message>
        <source>Nothing is listed, removed or started besides</source>
        <translation>Rien d’autre n’est listé, supprimé ni lancé.</translation>
    </message>
    <message>
        <source>There is no TCP</source>
        <translation>TCP n’est pas disponible.</translation>
    </message>
    <message>
        <source>There are no signals and no abstract sockets to others</source>
        <translation>Aucun signal ni socket abstrait vers d’autres processus.</translation>
    </message>
    <message>
        <source>Devices cannot be controlled</source>
        <translation>Les périphériques ne peuvent pas être commandés.</translation>
    </message>
    <message>
        <source>This version does not cover %1</source>
        <translation>Cette version ne couvre pas : %1.</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>signals and abstract sockets</source>
        <translation>signaux et sockets abstraits</translation>
    </message>
    <message>
        <source>control of devices</source>
        <translation>commande des périphériques</translation>
    </message>
    <message>
        <source>cutting files off</source>
        <translation>troncature de fichiers</translation>
    </message>
    <message>
        <source>System calls (seccomp): on</source>
        <translation>Appels système (seccomp) : actif.</translation>
    </message>
    <message>
        <source>Only calls on a list: no programs, processes, sockets, tracing, mounts, keys, changed modes or owners</source>
        <translation>Seuls les appels d’une liste : ni programmes, processus, sockets, traçage, montages, clés, ni changements de droits ou de propriétaires.</translation>
    </message>
    <message>
        <source>Engines open nothing for writing</source>
        <translation>Les moteurs n’ouvrent rien en écriture.</translation>
    </message>
    <message>
        <source>System calls (seccomp): missing</source>
        <translation>Appels système (seccomp) : absent.</translation>
    </message>
    <message>
        <source>Every call can be made</source>
        <translation>Tous les appels sont possibles.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): on</source>
        <translation>Vue des fichiers (espaces de noms utilisateur et montage) : active.</translation>
    </message>
    <message>
        <source>Files other than those that engines need do not exist, and all but scratch files are read-only</source>
        <translation>Seuls existent les fichiers dont les moteurs ont besoin, et tous sauf les temporaires sont en lecture seule.</translation>
    </message>
    <message>
        <source>File view (user and mount namespaces): missing</source>
        <translation>Vue des fichiers (espaces de noms utilisateur et montage) : absente.</translation>
    </message>
    <message>
        <source>The system does not permit them to this user</source>
        <translation>Le système ne les permet pas à cet utilisateur.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): on</source>
        <translation>Réseau et messages (espaces de noms) : actif.</translation>
    </message>
    <message>
        <source>No network exists</source>
        <translation>Aucun réseau n’existe.</translation>
    </message>
    <message>
        <source>No shared memory or queues of others exist</source>
        <translation>Ni mémoire partagée ni files d’attente d’autres n’existent.</translation>
    </message>
    <message>
        <source>Of a single picture on the command line: off, for they take time</source>
        <translation>Pour une seule image en ligne de commande : inactif, car cela prend du temps.</translation>
    </message>
    <message>
        <source>Network and messages (namespaces): missing</source>
        <translation>Réseau et messages (espaces de noms) : absent.</translation>
    </message>
    <message>
        <source>What else is on keeps pictures from them</source>
        <translation>Ce qui est actif par ailleurs en tient les images à l’écart.</translation>
    </message>
    <message>
        <source>Limits: memory, processor time, size and number of files, scratch files; no core files</source>
        <translation>Limites : mémoire, temps processeur, taille et nombre des fichiers, fichiers temporaires ; pas de vidage mémoire.</translation>
    </message>
    <message>
        <source>This build watches itself, for which it leaves layers out</source>
        <translation>Cette version se surveille elle-même et omet pour cela des couches.</translation>
    </message>
    <message>
        <source>Each picture is read in a process of its own that is confined so</source>
        <translation>Chaque image est lue dans un processus à part, ainsi confiné.</translation>
    </message>
    <message>
        <source>Nothing keeps a picture from this user's files: norvex refuses to read any</source>
        <translation>Rien ne protège les fichiers de cet utilisateur d’une image : norvex refuse d’en lire.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
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
        <translation>Maj</translation>
    </message>
</context>
</TS>
