import Quib.Views

QuibText {
}
